% N = RUN_FORMAT ()  number of the form in which runs are stored; 1 was that of version 0.1, which had no number in it
function n = run_format ()
  n = 2;
end
