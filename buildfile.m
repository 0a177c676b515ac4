% Plan for MATLAB's build tool, R2022b or newer on 64-bit Linux: buildtool builds the module and tests it.
%
%   buildtool mex     compiles src to build/matlab/quarn.mexa64
%   buildtool test    adds the toolbox to the path and runs qn.selftest
%
% Needs a C++17 compiler that mex knows (mex -setup C++), the headers and library of oneTBB, and a CBLAS with a static library:
% packages g++, libtbb-dev and libopenblas-serial-dev of Debian. Octave is not needed. QUARN_CBLAS_FLAGS and QUARN_CBLAS_LIBS in
% the environment name another CBLAS.
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
  flags = ['-std=c++17 -ffp-contract=off -fvisibility=hidden -fvisibility-inlines-hidden -ffunction-sections -fdata-sections ' cblas_flags];
  link = '-Wl,--exclude-libs,ALL -Wl,--gc-sections -Wl,-Bsymbolic';
  mex ('-R2017b', '-output', fullfile (output, 'quarn'), ['-I' fullfile(root, 'src')], ['-DQUARN_VERSION=' number], ['CXXFLAGS=$CXXFLAGS ' flags], ...
       'CXXOPTIMFLAGS=-O3 -DNDEBUG', ['LDFLAGS=$LDFLAGS ' link], ['LINKLIBS=$LINKLIBS ' cblas_libs ' -ltbb'], files{:});
end

function testTask (varargin)
% Says what works on this machine
  root = fileparts (mfilename ('fullpath'));
  addpath (fullfile (root, 'toolbox'));
  install_quarn (fullfile (root, 'build', 'matlab'));
  qn.selftest ();
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
