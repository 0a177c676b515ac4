% R = READ_RECORDS (FILE)  results of a benchmark program, one cell a record
function r = read_records (file)
  r = jsondecode (fileread (file));
  if ~iscell (r), r = num2cell (r); end
  r = reshape (r, 1, []);
end
