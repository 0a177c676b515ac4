% SANDBOX ()  packages of this process lie in the folder PACKAGE_PREFIX, and no others are seen
function sandbox ()
  prefix = getenv ('PACKAGE_PREFIX');
  pkg ('prefix', prefix, prefix);
  pkg ('local_list', fullfile (prefix, 'local'));
  pkg ('global_list', fullfile (prefix, 'global'));
end
