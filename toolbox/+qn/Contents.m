% Structural dynamics in the time domain: models, force laws, runs, results
%
% One line per function. "help qn" shows this list (on Octave "help qn.Contents"), "help qn.NAME" tells the rest, and "help quarn" has the
% commands of the module below.
%
% Matrices
%   pack           - matrix in the form that the module reads: column-compressed, 32-bit indices from 0
%   unpack         - host's sparse matrix from the module's structure
%   mmread         - reads a matrix from a Matrix Market file
%   mmwrite        - writes a matrix to a Matrix Market file
%   project        - projects a sparse matrix onto bases, with the module's own products
%
% Exchange
%   read_hb        - reads a matrix from a Harwell-Boeing file, with its right-hand sides
%   read_coordinates - reads a matrix from coordinate text: one entry per line, by node and degree of freedom or by row and column
%   read_op4       - reads the matrices of a Nastran OUTPUT4 file
%   read_dmig      - reads the matrices of Nastran DMIG entries from bulk data or a punch file
%   read_unv       - reads nodes, mode shapes and measured functions from a universal file
%   write_unv58    - writes time histories or frequency responses as functions of a universal file (dataset 58)
%
% Models
%   modal          - modal model of a structure: the coordinates in which quarn integrates
%   rayleigh       - coefficients of proportional damping from two damping ratios
%   observe        - observation rows: from modal coordinates to displacements of the structure
%   load_at        - load columns: from forces on the structure to modal forces
%   base           - modal force of a base acceleration
%
% Rotors
%   rotor          - a rotor: shaft, disks, bearings, seals and stator as plain matrices
%   campbell       - whirl speeds, damping and critical speeds of a rotor over its speed of rotation
%   unbalance      - loads of unbalances, at a constant speed or along a run-up
%   gravity        - load of a structure's own weight
%
% Force laws
%   law            - force law of a nonlinear element, by named parameters
%   table          - table law from measured points: sorted, repeated ones averaged, smoothed on request
%   describe       - a law, a handle, a model, a set-up or a result in words, with its numbers
%   element        - value of a nonlinear element handle (type 1003) from a law and observation rows
%   force          - force of a law along a history of displacements, computed by the module
%
% Recipes
%   gap            - one-sided contact behind a gap
%   stop           - two-sided stop
%   contact        - one-sided stop that loses energy: stiff and damped contact after Hunt and Crossley (1975)
%   bilinear       - elastic spring whose stiffness changes at a displacement
%   cubic          - cubic spring, force = K * x^3
%   slider         - Coulomb slider: sticks like a stiff spring, slides at its slip force
%   damper         - damper whose force is a power of the velocity: linear, quadratic, or between them
%   boucwen        - smooth hysteresis after Bouc (1967) and Wen (1976): yielding joints, isolators, steel dampers
%   iwan           - bank of Coulomb sliders in parallel (parallel-series model of Iwan, 1966)
%   zener          - Zener element (standard linear solid): a spring beside one Maxwell branch
%   maxwell        - generalised Maxwell damper: spring-and-damper branches in parallel, and a spring beside them
%   radial         - contact of a round shaft in a round clearance, with friction
%   journal        - oil film of a short plain bearing, or of a squeeze film damper
%   journal_coefficients - equilibrium, stiffness and damping of a journal bearing under a load
%   bearing        - table of a rolling bearing: clearance, then Hertzian contact
%
% Simulation
%   scheme         - parameters of Newmark's time integration (Newmark, 1959)
%   simulation     - everything that a time simulation needs, in one structure
%   check          - looks over a set-up before it runs, and says what to change
%   advise         - how long the time step may be, from runs with h, h/2 and h/4
%   run            - runs a simulation
%   resume         - goes on with a run that was stopped or cut short
%   interrupted    - what the last run that Ctrl-C or an error ended had reached
%
% Sweeps
%   sweep          - runs one set-up over many sets of parameters
%   grid           - all combinations of parameters, as the cases of a sweep
%
% Results
%   displacement   - displacements of the structure from a result
%   velocity       - velocities and accelerations of the structure from a result
%   acceleration   - accelerations of the structure from a result, relative to a moving base or absolute
%   energies       - where the energy of a run is, and whether it adds up
%   dissipated     - energy that each nonlinear element has taken up, stored, dissipated and exchanged
%   contacts       - the contacts in a force history: when, how long, how hard
%   spectrum       - amplitude spectrum of a signal
%   full_spectrum  - forward and backward parts of an orbit
%   spectrogram    - spectra of a signal along its time
%   order_track    - amplitudes of orders along a run-up
%   poincare       - a motion once in every period (Poincare section)
%   report         - report of a run on one page: set-up, findings, pictures, contacts, energies, versions
%   srs            - shock response spectrum of a base acceleration, or of a floor in a result
%
% Pictures
%   plot.page      - a figure to draw on, hidden where there is no screen
%   plot.panel     - one of several axes on a page, with room for titles and labels
%   plot.picture   - writes a figure to a picture file
%   plot.series    - time history of displacements or forces
%   plot.phase     - phase plane: velocity against displacement
%   plot.loop      - force of an element against its displacement
%   plot.orbit     - orbit of a point: one displacement against another
%   plot.waterfall - spectra one behind another
%   plot.full_spectrum - forward and backward parts of an orbit against the frequency
%   plot.spectrogram - spectra along the time, in colours
%   plot.orders    - amplitudes of orders against the speed of rotation
%   plot.poincare  - points of a Poincare section
%   plot.bifurcation - points of Poincare sections against the parameter of a sweep
%   plot.campbell  - Campbell diagram: whirl speeds over the speed of rotation
%
% Without time
%   static         - static equilibrium with nonlinear elements
%   harmonic       - steady response to a harmonic load, by harmonic balance and continuation
%   backbone       - frequency of free vibration against its amplitude
%
% Setting up
%   selftest       - what works on this machine, in one page
%   version        - version of the toolbox and of the compiled module that is loaded
%   report_host    - one page about this machine to send to us: versions, libraries, self-test, writes in place, objects, unloading
%
% Older names
%   command        - older name of qn.load_at
