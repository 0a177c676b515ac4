% LINES = LIBRARIES ()  files mapped into this process that the module may meet: its own, C and C++, schedulers, BLAS, the host's interface
function lines = libraries ()
  quarn ();
  rows = strsplit (qn.impl.host.contents ('/proc/self/maps'), sprintf ('\n'));
  files = regexp (rows, '^\S+ \S+ \S+ \S+ \d+ +(/.*)$', 'tokens', 'once');
  files = cellfun (@(f) f{1}, files(~cellfun (@isempty, files)), 'uniformoutput', false);
  lines = unique (files);
  wanted = ['/(quarn\.mex|ld-|lib(c|m|pthread|dl|gcc_s|stdc\+\+|gfortran)[-.]|lib(tbb|mkl|[gi]omp|hwloc)|lib\w*(blas|blis|lapack)|' ...
            'lib(mx|mex|mat|oct))[^/]*$'];
  lines = lines(~cellfun (@isempty, regexp (lines, wanted, 'once')));
  if isempty (lines), lines = {'not told: no /proc/self/maps can be read here'}; end
end
