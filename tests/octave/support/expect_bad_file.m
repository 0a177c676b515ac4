% EXPECT_BAD_FILE (READER, BYTES, PATTERN)  READER (FILE) refuses a file of BYTES with a message that PATTERN matches and that names it
function expect_bad_file (reader, bytes, pattern)
  [file, clean] = put_bytes (bytes);
  expect_error (@() reader (file), 'qn:input', ['~' regexptranslate('escape', file) '.*' pattern]);
end
