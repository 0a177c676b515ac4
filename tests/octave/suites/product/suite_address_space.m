% A process whose address space is limited (ulimit -v): products run, on worker threads where there is room for all of them, on one where not.
function tests = suite_address_space ()
  tests = localfunctions ();
end

% Products in a process that may have ROOM megabytes more than what it has when the first one begins. N: threads besides those it had.
function [status, n, text] = products_with (room)
  if ~isempty (getenv ('QUARN_SANITIZED')), skip_test ('the sanitizer takes more address space than there is'); end
  folders = {fileparts(which ('quarn')), fileparts(which ('fresh'))};
  code = {sprintf('addpath (''%s''); ', folders{:}), 'quarn (''ismex'');', '[s, n] = long_lines ();', ...
          'before = numel (dir (''/proc/self/task''));', ...
          'size = regexp (fileread (''/proc/self/status''), ''VmSize:\s+(\d+)'', ''tokens'', ''once'');', ...
          sprintf('limit = 1024 * (str2double (size{1}) + 1000 * %d);', room), ...
          'if system (sprintf (''prlimit --as=%d --pid %d'', limit, getpid ())) ~= 0, error (''no limit''); end', ...
          'for k = 1:5, worker_product (); end', 'disp (numel (dir (''/proc/self/task'')) - before)'};
  [status, text] = octave_says (sprintf ('%s\n', code{:}), 'OPENBLAS_NUM_THREADS=1 timeout -s KILL 60');
  n = str2double (text);
end

function test_products_run_whatever_the_limit ()
  rooms = 169:5:179;
  if ~isempty (getenv ('QUARN_FULL')), rooms = 40:10:1000; end
  for room = rooms
    [status, n, text] = products_with (room);
    if status ~= 0 || isnan (n), error ('%d MB more: status %d, printed "%s"', room, status, text); end
  end
end

function test_there_are_workers_where_there_is_room ()
  [status, n] = products_with (900);
  expect_equal ({status, n}, {0, 7});
  [status, n] = products_with (300);
  expect_equal ({status, n}, {0, 0});
end
