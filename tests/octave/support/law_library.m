% FILE = LAW_LIBRARY (FOLDER, NAME, TEXT)           compiles the C source TEXT of a user's law to NAME.so in FOLDER
% FILE = LAW_LIBRARY (FOLDER, NAME, TEXT, OPTIONS)  with further OPTIONS of the compiler
%
% A sanitizer that watches the host does not watch the compiler.
function file = law_library (folder, name, text, options)
  if nargin < 4, options = ''; end
  source = fullfile (folder, [name '.c']);
  file = fullfile (folder, [name '.so']);
  put_file (source, text);
  [status, said] = system (sprintf ('LD_PRELOAD= cc -std=gnu11 -O2 -fPIC -shared -ffp-contract=off %s -I"%s" -o "%s" "%s" 2>&1', options, ...
                                    fullfile (project_folder (), 'toolbox'), file, source));
  if status ~= 0, error ('the law does not compile: %s', said); end
end
