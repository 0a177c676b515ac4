% C = PUBLISHED (TITLE, SOURCE, SHOWS)  a case with a published or closed-form answer, for expect_published
%
% TITLE names it, SOURCE says where the answer comes from, SHOWS is a cell of the parts of quarn that it exercises: names of force laws
% and of the parts listed in validation_parts.
function c = published (title, source, shows)
  c = struct ('title', title, 'source', source, 'shows', {shows});
end
