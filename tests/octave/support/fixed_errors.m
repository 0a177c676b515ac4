% ERRORS = FIXED_ERRORS (ROOT)  the errors with a fixed identifier or text, as the sources below ROOT list them (src/base/fixed_errors.h)
%
% A struct column with the fields identifier (empty: none), text and from, what raises the error.
function errors = fixed_errors (root)
  if nargin < 1, root = project_folder (); end
  code = fileread (fullfile (root, 'src', 'base', 'fixed_errors.h'));
  rows = regexp (code, 'FixedError\s+\w+\{\s*(nullptr|"[^"]*"),\s*"([^"]*)",\s*"([^"]*)"\s*\}', 'tokens');
  errors = struct ('identifier', {}, 'text', {}, 'from', {});
  for k = 1:numel (rows)
    identifier = strrep (strrep (rows{k}{1}, 'nullptr', ''), '"', '');
    errors(k, 1) = struct ('identifier', identifier, 'text', rows{k}{2}, 'from', rows{k}{3});
  end
end
