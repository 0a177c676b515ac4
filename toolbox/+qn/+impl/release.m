% NUMBER = RELEASE ()  version of quarn. The build, the package and the citation take it from here.
function number = release ()
  number = '0.2.0';
end
