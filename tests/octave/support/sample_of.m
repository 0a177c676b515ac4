% BYTES = SAMPLE_OF (NAME)  the sample NAME of format_samples; SAMPLE_OF (NAME, OLD, NEW, ...) with the first of each OLD replaced by NEW
function bytes = sample_of (name, varargin)
  s = format_samples ();
  bytes = s{strcmp (s(:, 1), name), 2};
  for k = 1:2:numel (varargin)
    at = strfind (bytes, varargin{k});
    if isempty (at), error ('the sample "%s" does not hold "%s"', name, varargin{k}); end
    bytes = [bytes(1:at(1) - 1), varargin{k + 1}, bytes(at(1) + numel (varargin{k}):end)];
  end
end
