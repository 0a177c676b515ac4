% The frame of the demo with its stop and its brace, written with the toolbox. Needs the module on the path.
here = fileparts (mfilename ('fullpath'));
addpath (fullfile (here, '..', 'toolbox'), here);

frame = frame_model ();
model = qn.modal (frame.k, frame.m, 'modes', 40, 'damping', 0.02);
roof = qn.observe (model, frame.roof);
floor2 = qn.observe (model, frame.floor);
shock = @(t) 8 * sin (pi * t / 0.05) .* (t < 0.05);
stop = qn.gap ('gap', 0.015, 'stiffness', 1e8, 'padding', 0.002, 'soft', 1e7);
brace = qn.cubic ('stiffness', 5e9);

sim = qn.simulation (model, 'step', 1e-4, 'until', 2, 'load', {qn.base(model, frame.push), shock}, ...
                     'elements', {stop, roof; brace, floor2});
qn.check (sim);
res = qn.run (sim);
contacts = qn.contacts (res, 1);
energy = qn.energies (res);

fig = qn.plot.page (1000, 700);
qn.plot.panel (2, 1, 1); qn.plot.series (res, roof);
qn.plot.panel (2, 1, 2); qn.plot.series (res, 'force', [1 2], {'stop', 'brace'});
qn.plot.picture (fig, fullfile (getenv ('QUARN_DEMO_OUT'), 'frame.png'));
