% SLOWER = COMPARE_COMMITS (FOLDER)  prints the times of quarn's kernels in FOLDER/now.*.json and FOLDER/before.*.json side by side: the shortest of
% all rounds, and what the one is of the other. SLOWER kernels take more than 1.15 times as long as before. What only one of them has is left out.
function slower = compare_commits (folder)
  now = shortest (fullfile (folder, 'now.'));
  before = shortest (fullfile (folder, 'before.'));
  names = intersect (keys (now), keys (before));
  ratio = cellfun (@(name) now(name) / before(name), names);
  [ratio, order] = sort (ratio, 'descend');
  names = names(order);
  for k = 1:numel (names)
    fprintf ('%6.2f  %10s us, %10s before  %s\n', ratio(k), short_number (1e6 * now(names{k})), short_number (1e6 * before(names{k})), names{k});
  end
  slower = sum (ratio > 1.15);
  fprintf ('%d kernels, %d of them more than 1.15 times as long as before; median %.2f\n', numel (names), slower, median (ratio));
end

function times = shortest (start)
  times = containers.Map ();
  for round = 1:3
    for r = read_records (sprintf ('%s%d.json', start, round))
      r = r{1};
      if ~strncmp (r.program, 'quarn', 5) && ~strcmp (r.variant, 'elements'), continue; end  % the others are peers
      name = sprintf ('%s: %s, %d, %s', r.group, r.variant, r.size, r.program);
      s = r.seconds;
      if isKey (times, name), s = min (s, times(name)); end
      times(name) = s;
    end
  end
end
