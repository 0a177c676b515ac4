% QUARN  kernels of structural-dynamics time simulation
%
%   quarn ('command', arguments...)
%   x = quarn ()                        1.0001: the module is there
%
% quarn is a compiled module. This file holds its help; called as a function, it moves behind the compiled one on the path and passes the
% call on.
%
% Most commands write their result into arrays that the caller passes. Such an array has to be one of its own: zeros (n, 1) or
% the result of a computation. A range (1:3), a literal number or a copy of another variable will not do.
%
% Commands
%   x = quarn ('ismex')                                        1
%   s = quarn ('cvs')                                          revision string
%   s = quarn ('version')                                      version, compiler, host and CBLAS of the module
%   quarn ('residual', r, model, u, v, a, opt, extra)          r = r + M a + C v + K u + nonlinear forces, in place
%   [t, w] = quarn ('residual', ...)                           the same, and the kinetic and strain energy of a matrix model
%   i = quarn ('chandleset', type, value)                      new handle; type 1 stiffness, 2 mass, 3 damping,
%                                                              1003 nonlinear element, 2000 Newmark integrator
%   value = quarn ('chandleget', i)                            copy of a handle's value
%   list = quarn ('chandleget')                                indices of all handles
%   y = quarn ('chandleget', f, i, ...)                        f (value, ...)
%   quarn ('chandleclear', i)                                  frees a handle, all of them without i
%   quarn ('chandlediagnewmark', list, model, u, v, a, opt, mem, out)   time integration in modal coordinates, in place
%   [e, v, a] = quarn ('energies', q, k, c, [h gamma], v0, a0, s, loads, b, forces)   energies and rates of a motion in modal coordinates
%   quarn ('tbbp', A, x, y)                                    y = y + A.' * x, in place, in parallel
%   p = quarn ('c<-a''*b', a, B)                               a.' * B
%   p = quarn ('abc', A, K, B, int32 ([1 0 0]))                A.' * K * B, bases real or complex, of equal width
%   quarn ('setsparse', S, ir, [], pr)                         overwrites indices and values of a matrix, in place
%
% A sparse matrix is passed as a structure with 32-bit indices from 0; see qn.pack. A list of handles is a chandle vector.
%
% Working with models instead of index vectors: package qn (help qn.Contents has one line on each)
%   matrices       qn.pack, qn.unpack, qn.mmread, qn.mmwrite, qn.project
%   exchange       qn.read_hb, qn.read_coordinates, qn.read_op4, qn.read_dmig, qn.read_unv, qn.write_unv58
%   models         qn.modal, qn.rayleigh, qn.observe, qn.load_at, qn.base
%   rotors         qn.rotor, qn.campbell, qn.unbalance, qn.gravity
%   force laws     qn.law, qn.table, qn.describe, qn.element, qn.force
%   recipes        qn.gap, qn.stop, qn.contact, qn.bilinear, qn.cubic, qn.damper, qn.slider, qn.boucwen, qn.iwan, qn.zener, qn.maxwell,
%                  qn.bearing, qn.radial, qn.journal, qn.journal_coefficients
%   simulation     qn.scheme, qn.simulation, qn.check, qn.advise, qn.run, qn.resume, qn.interrupted
%   sweeps         qn.sweep, qn.grid
%   results        qn.displacement, qn.velocity, qn.acceleration, qn.energies, qn.dissipated, qn.contacts, qn.spectrum, qn.srs,
%                  qn.full_spectrum, qn.spectrogram, qn.order_track, qn.poincare, qn.report
%   pictures       qn.plot.page, qn.plot.panel, qn.plot.picture, qn.plot.series, qn.plot.phase, qn.plot.loop, qn.plot.orbit,
%                  qn.plot.waterfall, qn.plot.full_spectrum, qn.plot.spectrogram, qn.plot.orders, qn.plot.poincare,
%                  qn.plot.bifurcation, qn.plot.campbell
%   without time   qn.static, qn.harmonic, qn.backbone
%   setting up     install_quarn, qn.selftest, qn.version, qn.report_host
%   older names    qn.command (now qn.load_at)
%
% Numbers in these functions are finite and real, unless a help text says otherwise. Single precision and integer classes are
% converted to double; truth values and characters are refused where a number is meant. What is wrong is an error with the
% identifier qn:input that names function, argument, place and value.
%
% Example
%   model = qn.modal (4e4, 1, 'damping', 0.01);
%   stop = qn.gap ('gap', 0.002, 'stiffness', 1e6);
%   sim = qn.simulation (model, 'step', 1e-4, 'until', 0.5, 'load', {qn.load_at(model, 1), @(t) 200 * sin (150 * t)}, ...
%                        'elements', {stop, qn.observe(model, 1)});
%   res = qn.run (sim);
%   qn.contacts (res, 1)
%
% See also chandle, v_handle, qn.simulation, qn.run
function varargout = quarn (varargin)
  here = fileparts (mfilename ('fullpath'));
  name = ['quarn.' mexext()];
  folders = strsplit (path (), pathsep ());
  if ~any (cellfun (@(folder) exist (fullfile (folder, name), 'file') > 0, folders))
    error ('quarn: the compiled module %s is not on the path; add the folder that it was built into with addpath', name);
  end
  if strcmp (pwd (), here)
    error ('quarn: the current folder hides the compiled module; change to another folder and add this one with addpath');
  end
  addpath (here, '-end');
  [varargout{1:nargout}] = qn.impl.compiled (varargin{:});
end
