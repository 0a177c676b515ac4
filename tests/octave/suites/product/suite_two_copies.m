% Two copies of the module in one process, as from two installations on the path: they share one scheduler, and the first that leaves ends
% it for both. A few processes by default, 48 with the environment variable QUARN_FULL set.
function tests = suite_two_copies ()
  tests = localfunctions ();
end

% What ends the copies after their products, in both orders.
function e = ends ()
  e = {'', 'clear quarn', 'clear other', 'clear other; clear quarn', 'clear quarn; other (product{:}); clear other', 'other (product{:});'};
end

function test_both_multiply_and_leave_in_any_order ()
  [folder, clean] = new_folder ();
  copyfile (which ('quarn'), folder);
  [renamed, why] = rename (fullfile (folder, 'quarn.mex'), fullfile (folder, 'other.mex'));
  if renamed ~= 0, error ('no copy of the module: %s', why); end
  folders = {fileparts(which ('quarn')), fileparts(which ('long_lines')), folder};
  firsts = {'quarn (product{:}); other (product{:});', 'other (product{:}); quarn (product{:});'};
  [first, last] = ndgrid (1:2, 1:numel (ends ()));
  all = ends ();
  rounds = 1;
  if ~isempty (getenv ('QUARN_FULL')), rounds = 4; end
  faults = {};
  for k = repmat (1:numel (first), 1, rounds)
    code = {sprintf('addpath (''%s''); ', folders{:}), '[s, n] = long_lines (); y = zeros (n, 1); product = {''tbbp'', s, ones(n, 1), y};', ...
            firsts{first(k)}, all{last(k)}, 'disp (y(n) / 50)'};
    [status, text] = octave_says (sprintf ('%s\n', code{:}), 'timeout -s KILL 60');
    products = 2 + numel (strfind (all{last(k)}, 'product'));
    if status ~= 0 || ~strcmp (strtrim (text), sprintf ('%d', products))
      faults{end + 1} = sprintf ('%s %s: status %d, printed "%s"\n', firsts{first(k)}, all{last(k)}, status, text);
    end
  end
  count = rounds * numel (first);
  fprintf ('        %d of %d processes ended well\n', count - numel (faults), count);
  if ~isempty (faults), error ('%s', [faults{:}]); end
end
