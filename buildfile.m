% Plan for MATLAB's build tool, R2022b or newer on 64-bit Linux: buildtool builds the module and tests it.
%
%   buildtool mex     compiles src to build/matlab/quarn.mexa64
%   buildtool test    adds the toolbox to the path and runs qn.selftest
%
% Needs a C++17 compiler that mex knows (mex -setup C++), the headers and library of oneTBB, and a CBLAS with a static library:
% packages g++, libtbb-dev and libopenblas-serial-dev of Debian. Octave is not needed. QUARN_CBLAS_FLAGS and QUARN_CBLAS_LIBS in
% the environment name another CBLAS, QUARN_TBB the folder of a oneTBB (with include and lib): one with a static library, as scripts/release
% makes it, cannot meet the copy that MATLAB brings along.
function plan = buildfile
  plan = buildplan (localfunctions ());
  plan.DefaultTasks = {'mex', 'test'};
end

function mexTask (varargin)
% Compiles the module
  root = fileparts (mfilename ('fullpath'));
  source = [dir(fullfile (root, 'src', '*', '*.cpp')); dir(fullfile (root, 'src', '*', '*', '*.cpp'))];
  files = strcat ({source.folder}, filesep (), {source.name});
  output = fullfile (root, 'build', 'matlab');
  if ~exist (output, 'dir'), mkdir (output); end
  [cblas_flags, cblas_libs] = cblas ();
  number = regexp (fileread (fullfile (root, 'toolbox', '+qn', '+impl', 'release.m')), '\d+\.\d+\.\d+', 'match', 'once');
  % No flag of visibility: mex compiles MATLAB's version file with the same flags, and its symbol has to be seen. The map hides the rest.
  flags = ['-std=c++17 -ffp-contract=off -ffunction-sections -fdata-sections ' cblas_flags];
  link = ['-Wl,--exclude-libs,ALL -Wl,--gc-sections -Wl,-Bsymbolic -Wl,--version-script=' fullfile(root, 'cmake', 'module.map')];
  [tbb_flags, tbb_libs] = scheduler ();
  mex ('-R2017b', '-output', fullfile (output, 'quarn'), ['-I' fullfile(root, 'src')], ['-DQUARN_VERSION=' number], ['CXXFLAGS=$CXXFLAGS ' flags ' ' tbb_flags], ...
       'CXXOPTIMFLAGS=-O3 -DNDEBUG', ['LDFLAGS=$LDFLAGS ' link], ['LINKLIBS=$LINKLIBS ' cblas_libs ' ' tbb_libs], files{:});
end

function testTask (varargin)
% Says what works on this machine
  root = fileparts (mfilename ('fullpath'));
  if ~exist (fullfile (root, 'build', 'matlab', ['quarn.' mexext()]), 'file'), mexTask (); end
  addpath (fullfile (root, 'toolbox'));
  install_quarn (fullfile (root, 'build', 'matlab'));
  qn.selftest ();
end

function [flags, libs] = scheduler ()
  folder = getenv ('QUARN_TBB');
  flags = '';
  libs = '-ltbb';
  if ~isempty (folder)
    flags = ['-I' fullfile(folder, 'include')];
    libs = ['-L' fullfile(folder, 'lib') ' -ltbb -lpthread -ldl'];
  end
end

% Linked statically and hidden: MATLAB has a BLAS of its own in the process.
function [flags, libs] = cblas ()
  flags = getenv ('QUARN_CBLAS_FLAGS');
  libs = getenv ('QUARN_CBLAS_LIBS');
  if isempty (libs)
    flags = '-I/usr/include/x86_64-linux-gnu/openblas-serial';
    libs = '-L/usr/lib/x86_64-linux-gnu/openblas-serial -l:libopenblas.a';
  end
end
