% LINES = VERSIONS ()  toolbox, module, host, system and processor, and what is set in the environment
function lines = versions ()
  v = qn.version ();
  lines = cellfun (@(name) named (name, v.(name)), fieldnames (v), 'uniformoutput', false).';
  lines{end + 1} = named ('computer', computer ());
  lines{end + 1} = named ('BLAS', of_host ('-blas'));
  lines{end + 1} = named ('LAPACK', of_host ('-lapack'));
  lines{end + 1} = named ('system', qn.impl.host.contents ('/proc/version'));
  lines{end + 1} = named ('C library', first_line ('getconf GNU_LIBC_VERSION'));
  cpu = qn.impl.host.contents ('/proc/cpuinfo');
  model = regexp (cpu, 'model name\s*: ([^\n]*)', 'tokens', 'once');
  lines{end + 1} = named ('processor', sprintf ('%d x %s', numel (regexp (cpu, '(^|\n)processor\s*:')), [model{:}]));
  for name = {'LD_LIBRARY_PATH', 'LD_PRELOAD', 'OMP_NUM_THREADS', 'MKL_NUM_THREADS', 'BLAS_VERSION', 'LAPACK_VERSION'}
    value = getenv (name{1});
    if ~isempty (value), lines{end + 1} = [name{1} ' = ' value]; end
  end
end

function line = named (name, value)
  line = sprintf ('%-10s %s', name, strtrim (value));
end

% Not every version of either host knows these words.
function text = of_host (word)
  try
    text = version (word);
  catch
    text = 'not told';
  end
end

function text = first_line (command)
  [status, text] = system (command);
  if status ~= 0, text = 'not told'; end
end
