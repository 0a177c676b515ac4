% EXPECT_IN (TEXT, PART)  the TEXT must hold PART
function expect_in (text, part)
  if isempty (strfind (text, part)), error ('expected "%s" in:\n%s', part, text); end
end
