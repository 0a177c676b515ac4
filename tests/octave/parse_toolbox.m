% Parses every file of the toolbox in the host's traditional mode: octave-cli --traditional --no-history -qf parse_toolbox.m FOLDER
%
% The mode rejects little; what both hosts share beyond it is looked for by pattern in suite_toolbox_help.
arguments = argv ();
folder = arguments{end};
found = 0;
failed = 0;
pending = {folder};
while ~isempty (pending)
  here = pending{1};
  pending(1) = [];
  entries = dir (here);
  for k = 1:numel (entries)
    name = entries(k).name;
    if entries(k).isdir
      if name(1) ~= '.', pending{end + 1} = fullfile (here, name); end
      continue
    end
    if isempty (regexp (name, '\.m$', 'once')), continue, end
    found = found + 1;
    try
      __parse_file__ (fullfile (here, name));
    catch err
      failed = failed + 1;
      fprintf ('FAILED  %s: %s\n', fullfile (here, name), err.message);
    end
  end
end
fprintf ('%d files parsed, %d failed\n', found, failed);
if failed > 0 || found < 85, exit (1); end
