% WORDS = WORDS ()  the compiler of the user's laws and its options, a row of texts; the compiler is that of the environment variable CC, or cc
%
% No processor's own instructions and no contraction of products and sums: a law gives the same bits on every node of a cluster. What a law
% calls must be there when it is linked (-z defs): the linker says its name, not the loader at the first run.
function words = words ()
  compiler = strsplit (strtrim (getenv ('CC')), ' ');
  compiler = compiler(~cellfun (@isempty, compiler));
  if isempty (compiler), compiler = {'cc'}; end
  words = [compiler, {'-std=gnu11', '-O2', '-fPIC', '-shared', '-ffp-contract=off', '-Wall', '-Werror=implicit-function-declaration', ...
                      '-Werror=incompatible-pointer-types', '-Werror=int-conversion', '-Wl,-z,defs'}];
end
