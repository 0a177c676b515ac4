% KIB = RESIDENT_MEMORY ()  memory of this process in main memory, in KiB
function kib = resident_memory ()
  text = fileread ('/proc/self/status');
  found = regexp (text, 'VmRSS:\s*(\d+)', 'tokens', 'once');
  kib = str2double (found{1});
end
