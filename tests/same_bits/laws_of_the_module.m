% WORDS = LAWS_OF_THE_MODULE ()  the keywords of the force laws that the module computes; those of "User" come from a function or a library
function words = laws_of_the_module ()
  words = getfield (source_tables (), 'laws');
  words = words(~strcmp (words, 'User'));
end
