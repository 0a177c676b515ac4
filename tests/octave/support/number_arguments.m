% ROWS = NUMBER_ARGUMENTS ()  a valid call of each public function of the toolbox, with numbers in every argument that takes some
%
% A row is {function, {names of the arguments as its help calls them}, {arguments, then names and values}, exceptions}. An exception
% is a row {argument, kinds of number, reason}, the first two regular expressions: what such a number gives is as documented. The kind
% 'named' stands for errors that another function of the toolbox says under its own name.
% suite_toolbox_arguments puts wrong numbers into each place; a function with more forms of call has more rows.
function rows = number_arguments ()
  model = qn.modal (1e4 * [2 -1 0; -1 2 -1; 0 -1 1], diag ([1 2 3]), 'damping', 0.02);
  rotor = qn.modal (1e4 * eye (2), eye (2), 'G', [0 1; -1 0], 'speed', 0);
  row = qn.observe (model, 3);
  spring = {qn.cubic('stiffness', 100), row};
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 20, 'v0', [0; 0; 1], 'elements', spring);
  res = qn.run (sim, 'progress', false);
  part = qn.run (sim, 'progress', false, 'piece', 5, 'stop', @(r) true);
  moved = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 20, 'base', {[1; 1; 1], @sin}), 'progress', false);
  any_length = 'a list of any length';
  dofs = {'DOFS', 'longer', any_length};
  optional = '[] stands for the default';
  anything = 'values of the user''s own';
  t = 0:0.1:0.7;
  file = [tempname() '.mtx'];
  rows = {
    'chandle', {'I'}, {[1 2]}, {'I', 'nan|.*inf|logical|deep', 'whether the handles exist is asked when the vector is used'
                                'I', 'longer|transposed|empty', any_length}
    'v_handle', {'FILE'}, {eye(2)}, {'FILE', '.*', 'what is no matrix is refused where it is used as one'}
    'delete', {'H'}, {}, {}
    'install_quarn', {'FOLDER'}, {}, {}
    'qn.acceleration', {'RES', 'C', 'DOFS'}, {moved, row, 'absolute', false}, {}
    'qn.advise', {'SIM'}, {sim, 'rows', row, 'tolerance', 0.01, 'until', 0.02, 'order', false}, {'rows', 'empty', optional}
    'qn.backbone', {'MODEL', 'ELEMENTS', 'AMPLITUDE'}, ...
      {model, spring, [0.01 0.02], 'mode', 1, 'row', row, 'harmonics', 3, 'samples', 32}, {'row', 'empty', optional}
    'qn.base', {'MODEL', 'PUSH'}, {model, [1; 0; 2]}, {}
    'qn.bearing', {}, {'stiffness', 1e9, 'exponent', 1.5, 'clearance', 1e-5, 'range', 1e-3, 'knots', 5}, {}
    'qn.bearing', {}, {'deflection', [1 2 4], 'force', [1 2 3]}, {'deflection', 'empty', '"stiffness" is then said to be missing'}
    'qn.bilinear', {}, {'first', 1, 'second', 2, 'at', 0.1}, {}
    'qn.campbell', {'R', 'SPEEDS'}, {struct('M', eye(2), 'K', [4 1; 0.5 9], 'C', [1 0.5; 0 2], 'G', [0 1; -1 0]), [1 3], 'modes', 2, ...
                                     'orders', [1 2], 'places', [1 2], 'basis', 2}, ...
      {'places|basis', 'empty', optional; 'C|G', 'empty', 'none'; 'orders|places', 'longer', any_length}
    'qn.boucwen', {}, {'stiffness', 2, 'yield', 0.1, 'ratio', 0.2, 'exponent', 3, 'shape', 0.6}, {}
    'qn.check', {'SIM', 'RES'}, {sim, res}, {}
    'qn.journal', {}, {'viscosity', 0.1, 'length', 0.03, 'radius', 0.05, 'clearance', 1e-4, 'speed', 100, 'limit', 0.9, 'centre', [1e-5 2e-5]}, ...
      {'radius', 'empty', '"diameter" is then said to be missing'}
    'qn.journal', {}, {'viscosity', 0.1, 'length', 0.03, 'diameter', 0.1, 'clearance', 1e-4, 'speed', 100}, ...
      {'diameter', 'empty', '"radius" is then said to be missing'}
    'qn.journal_coefficients', {'LAW', 'LOAD'}, ...
      {qn.journal('viscosity', 0.1, 'length', 0.03, 'radius', 0.05, 'clearance', 1e-4, 'speed', 100), [100 -200]}, {}
    'qn.load_at', {'MODEL', 'DOFS', 'WEIGHTS'}, {model, [1 3], [1 -1]}, {}
    'qn.load_at', {'MODEL', 'ROWS'}, {model, [1 0 2; 0.5 0 1]}, {'ROWS', 'logical|empty|char|cell', 'the message is that for DOFS'}
    'qn.command', {'MODEL', 'DOFS', 'WEIGHTS', 'ROWS'}, {model, [1 3], [1 -1]}, {'.*', 'named', 'an older name of qn.load_at'}
    'qn.contacts', {'RES', 'ROW'}, {res, 1}, {}
    'qn.contacts', {'TIME', 'FORCE'}, {t, t}, {}
    'qn.cubic', {}, {'stiffness', 2}, {}
    'qn.describe', {'X'}, {3}, {}
    'qn.displacement', {'RES', 'C'}, {res, row}, {}
    'qn.displacement', {'RES', 'C', 'DOFS'}, {res, [1; 3]}, {'C', 'longer|transposed', any_length}
    'qn.dissipated', {'RES'}, {res}, {}
    'qn.damper', {}, {'damping', 2, 'exponent', 3}, {}
    'qn.element', {'LAW', 'C'}, {qn.slider('slip', 2, 'stiffness', 3), [1 0], 'command', [2 0], 'step', 0.1, 'state', 3, 'slot', 1}, {}
    'qn.energies', {'RES'}, {res}, {}
    'qn.force', {'LAW', 'X', 'V', 'H'}, {qn.slider('slip', 2, 'stiffness', 3), [1 2 3], [1 1 2], 0.1}, {}
    'qn.force', {'LAW', 'X', 'V'}, {qn.damper('damping', 3), [1 2 3], [4 5 6]}, {'X', 'longer|transposed', 'the velocities are said to differ'}
    'qn.force', {'LAW', 'X'}, {qn.cubic('stiffness', 3), [1 2 3]}, {'X', 'longer|transposed', 'one force a displacement, of any shape'}
    'qn.full_spectrum', {'TIME', 'X', 'Y'}, {t, t, t, 'window', 'hann', 'mean', 'keep'}, {}
    'qn.full_spectrum', {'RES', 'CX', 'CY'}, {res, row, row}, {}
    'qn.gap', {}, {'gap', 0.1, 'stiffness', 10, 'side', 1, 'padding', 0.01, 'soft', 2}, {'soft', 'empty', optional}
    'qn.gravity', {'MODEL', 'PUSH'}, {model, [0; 1; -1], 'g', 1.6, 'ramp', 0.1}, {}
    'qn.grid', {'NAME', 'VALUES'}, {'gap', [1 2 3]}, {'VALUES', '.*', anything}
    'qn.harmonic', {'MODEL', 'LOAD', 'ELEMENTS', 'HERTZ'}, ...
      {model, [1 2 0.5], spring, [2 3], 'harmonics', 1, 'samples', 16, 'points', 3, 'step', 0.02, 'power', 1, 'G', [0 1 0; -1 0 2; 0 -2 0]}, ...
      {'LOAD', 'complex', 'phases'; 'G', 'empty', optional}
    'qn.contact', {}, {'stiffness', 2, 'exponent', 1.5, 'damping', 0.5, 'gap', 0.1, 'side', 1}, {'damping', 'empty', optional}
    'qn.contact', {}, {'stiffness', 2, 'restitution', 0.5, 'speed', 3}, ...
      {'restitution|speed', 'empty', 'they are then said to go together'}
    'qn.interrupted', {}, {}, {}
    'qn.iwan', {}, {'slip', 10, 'stiffness', 100, 'sliders', 3}, {}
    'qn.iwan', {}, {'slips', [1 2], 'stiffnesses', [10 20]}, {'slips', 'empty', '"slip" is then said to be missing'}
    'qn.maxwell', {}, {'springs', [1 2], 'dampers', [3 4], 'stiffness', 5}, {}
    'qn.maxwell', {}, {'springs', [1 2], 'times', [3 4]}, {}
    'qn.mmread', {'FILE'}, {}, {}
    'qn.mmwrite', {'FILE', 'A', 'COMMENT'}, {file, [1 2 3], 'a'}, {'A', 'complex|transposed|longer', 'any matrix'}
    'qn.modal', {'K', 'M'}, {model.K, model.M, 'modes', 2, 'damping', [0.1 0.2], 'rayleigh', [1 2], 'C', model.K, 'method', 'eig', ...
                             'attach', [1 3], 'G', [0 1 0; -1 0 0; 0 0 0], 'speed', 3, 'K', magic(3), 'KG', magic(3), ...
                             'N', magic(3), 'by_speed', {1, magic(3), magic(3); 5, [1 2 3; 4 5 6; 0 1 0], 2 * magic(3)}}, ...
      {'C|G|KG|N|by_speed|by_speed{., [23]|attach', 'empty', optional; 'K', 'empty', 'that of the option K'; 'attach', 'longer|transposed', any_length}
    'qn.modal', {'S'}, {struct('K', 4, 'M', 1)}, {}
    'qn.modal', {'R'}, {qn.rotor('nodes', [0 1], 'outer', 0.1, 'bearings', {1, @(w) 1e6 + w, 3; 2, 1e6, 5}), 'speeds', [0 50 100]}, ...
      {'speeds', 'longer', any_length}
    'qn.observe', {'MODEL', 'DOFS', 'WEIGHTS'}, {model, [1 3], [1 -1]}, {}
    'qn.observe', {'MODEL', 'ROWS'}, {model, sparse([1 0 2])}, ...
      {'ROWS', 'empty|logical|char|cell|deep|longer|transposed', 'what is not sparse is read as DOFS, and named so'}
    'qn.order_track', {'TIME', 'SIGNAL', 'ROTATION', 'ORDERS'}, {0:0.1:1.9, 0:19, 1:0.01:1.19, [1 2], 'turns', 2, 'overlap', 0.5}, ...
      {'ORDERS', 'longer|transposed', any_length}
    'qn.order_track', {'RES', 'C', 'ROTATION', 'ORDERS'}, {res, row, 110, 1, 'turns', 2}, {'ORDERS', 'longer', any_length}
    'qn.pack', {'A'}, {[1 2; 3 4; 5 6]}, {'A', 'longer|transposed|empty|logical', 'any matrix'}
    'qn.plot.campbell', {'D'}, {qn.campbell(struct ('M', 1, 'K', 4), [1 3]), 'show', 'whirl', 'modes', 1, 'top', 3}, ...
      {'modes', 'longer', any_length; 'top', 'empty', optional}
    'qn.plot.bifurcation', {'VALUES', 'POINTS'}, {[1 2], {[1 2 3], 4}, 'label', 'x', 'unit', 'm'}, ...
      {'POINTS\{', 'longer|transposed|empty', any_length}
    'qn.plot.full_spectrum', {'HERTZ', 'FORWARD', 'BACKWARD', 'LIMIT'}, {[0 1], [1 2], [0 3], 2}, {'FORWARD|BACKWARD', 'complex', 'amplitudes'}
    'qn.plot.loop', {'RES', 'K'}, {res, 1}, {}
    'qn.plot.loop', {'X', 'F'}, {t, t}, {}
    'qn.plot.orbit', {'RES', 'CX', 'CY', 'CLEARANCE'}, {res, row, qn.observe(model, 1), 0.1}, {}
    'qn.plot.orbit', {'X', 'Y', 'CLEARANCE'}, {t, t, 0.1}, {}
    'qn.plot.orders', {'SPEED', 'AMPLITUDE', 'ORDERS'}, {[1 2 3], [1 2 3; 4 5 6], [1 2]}, {'AMPLITUDE', 'complex', 'amplitudes'}
    'qn.plot.page', {'WIDTH', 'HEIGHT'}, {300, 200}, {}
    'qn.plot.panel', {'ROWS', 'COLUMNS', 'K'}, {2, 2, [1 2]}, {}
    'qn.plot.phase', {'RES', 'C', 'PERIOD'}, {res, row, 0.01}, {}
    'qn.plot.picture', {'FIG', 'FILE'}, {}, {}
    'qn.plot.poincare', {'POINTS'}, {[1 2 3; 4 5 7]}, {'POINTS', 'longer', any_length}
    'qn.plot.spectrogram', {'HERTZ', 'MIDDLE', 'X'}, {[0 1 2], [1 2], [1 2; 3 4; 5 6], 'hertz', [0 2], 'range', 40, 'unit', 'm'}, ...
      {'X', 'complex', 'amplitudes'; 'hertz', 'empty', optional}
    'qn.plot.series', {'RES', 'C', 'NAMES'}, {res, row}, {}
    'qn.plot.series', {'RES', '', 'ROWS'}, {res, 'force', 1}, {'ROWS', 'longer', any_length}
    'qn.plot.waterfall', {'TIME', 'SIGNAL'}, {0:0.1:3.1, 1:32, 'parts', 3, 'hertz', [0 2]}, {'hertz', 'empty', optional}
    'qn.plot.waterfall', {'HERTZ', 'SPECTRA'}, {t, [t; t + 1], 'along', [1 2], 'label', 'Speed', 'unit', 'm'}, ...
      {'SPECTRA', 'complex', 'amplitudes may be complex'; 'along', 'empty', 'times and a signal are then expected, and said to be missing'}
    'qn.poincare', {'TIME', 'SIGNALS', 'PERIOD'}, {t, [t; t + 1], 0.4, 'phase', 0.25, 'skip', 0}, {}
    'qn.poincare', {'RES', 'C', 'PERIOD'}, {res, row, 0.01}, {}
    'qn.project', {'A', 'K', 'B'}, {[1 2; 3 4; 5 6], magic(3), [1; 2; 3]}, ...
      {'A|B', 'complex', 'bases may be complex'; 'A|B', 'longer', 'of any width'}
    'qn.radial', {}, {'gap', 0.1, 'stiffness', 10, 'exponent', 1.5, 'damping', 0.1, 'friction', 0.2, 'onset', 0.1, 'radius', 1, 'speed', 2, ...
                      'centre', [0.1 0.2]}, {}
    'qn.rayleigh', {'HERTZ', 'ZETA'}, {[1 2], [0.1 0.2]}, {}
    'qn.read_coordinates', {'FILE'}, {'no file', 'form', 'dofs', 'symmetric', [], 'repeated', 'refuse', 'dofs', ''}, {}
    'qn.read_dmig', {'FILE', 'NAME'}, {}, {}
    'qn.read_hb', {'FILE', 'mapping'}, {}, {}
    'qn.read_op4', {'FILE', 'NAME'}, {}, {}
    'qn.read_unv', {'FILE'}, {}, {}
    'qn.report', {'RES', 'FILE'}, {res, [file '.html'], 'title', '', 'note', '', 'rows', row, 'names', {'a'}, 'pictures', false, 'date', ''}, ...
      {'rows', 'empty', optional}
    'qn.report_host', {}, {}, {}
    'qn.resume', {'RES', 'FILE'}, {part, 'progress', false, 'piece', 5, 'save', '', 'interval', 30, 'stop', []}, {'piece', 'empty', optional}
    'qn.rotor', {}, {'nodes', [0 1 3], 'outer', [0.2 0.3], 'inner', [0.1 0.05], 'young', [1e9 2e9], 'density', [2 3], 'poisson', [0.2 0.3], ...
                     'internal', [1e-4 2e-4], 'shear', true, 'disks', [1 1 2 3; 2 1 3 4], 'cylinders', [3 0.1 2 1 7], ...
                     'bearings', {1, [1 2; 4 3], [2 1; 1 3]; [2 1 2], [5 1; 2 2], [1 0; 0 2]}, 'seals', {3, [1 2; -2 1], [2 1; 1 2], [2 1; 1 4]}, ...
                     'stator', struct('M', [2 1; 1 3], 'K', [4 1; 1 5], 'C', [1 2; 2 7]), 'speed', 5}, ...
      {'outer|inner|young|density|poisson|internal', 'named', 'an error of another one'; 'disks|cylinders|nodes|speed|C|seals{1, [234]|bearings{., [23]', 'empty', optional
       'nodes|outer|inner|young|density|poisson|internal', 'longer', any_length}
    'qn.rotor', {'R'}, {qn.rotor('nodes', [0 1], 'outer', 0.1, 'bearings', {1, @(w) 1e6 + w}), 'speed', 5}, {}
    'qn.rotor', {}, {'shaft', struct('M', eye(4), 'K', [4 1 0 0; 1 3 0 0; 0 0 2 1; 0 0 1 2], 'C', eye(4), 'N', magic(4), 'places', [1 3; 2 4])}, ...
      {'places', 'longer', 'four columns are x, y, thx, thy'; 'C|N', 'empty', optional}
    'qn.run', {'SIM'}, {sim, 'check', true, 'progress', false, 'piece', 5, 'save', '', 'interval', 30, 'stop', []}, ...
      {'piece', 'empty', optional}
    'qn.scheme', {'[BETA GAMMA]'}, {[0.25 0.5]}, {'.*', 'cell', 'arguments in a cell'}
    'qn.scheme', {'NAME', 'RHO'}, {'damped', 0.5}, {}
    'qn.selftest', {}, {}, {}
    'qn.simulation', {'MODEL'}, {model, 'step', 1e-3, 'steps', 7, 'every', 2, 'scheme', [0.25 0.5], 'base', {[1 1 2], @sin}, ...
                                 'u0', [1 2 3], 'v0', [1 2 4], 'a0', [1 2 5], 'load', {[1 2 3.5], t; [1 2 4.5], [0 1; 2 3]}, ...
                                 'elements', {qn.cubic('stiffness', 100), row, 2 * row}}, ...
      {'scheme', 'named', 'qn.scheme says it'; 'scheme', 'cell', 'arguments in a cell'; 'u0|v0', 'empty', optional; 'load\{2, 2', 'longer', any_length; 'load\{2, 2', 'transposed', 'a table of 2 x 2 cannot be told from its transpose'
       'steps', 'empty', '"until" is then said to be missing'; 'elements\{1, 3', 'empty', optional}
    'qn.simulation', {'MODEL'}, {model, 'step', 1e-3, 'until', 7e-3, 'times', [1e-3 2e-3], 'q0', [1 2 3], 'dq0', [1 2 4], 'start', [], 'fresh', []}, ...
      {'q0|dq0|times', 'empty', optional; 'times', 'longer', any_length; 'until', 'empty', '"steps" is then said to be missing'}
    'qn.simulation', {'MODEL'}, {rotor, 'step', 1e-3, 'steps', 7, 'speed', [0 1 2; 0 1 1], 'varying', {'K', [1 2; 3 4], [0 1 2; 0 1 1]}}, ...
      {'speed', 'empty', optional; 'speed|varying{1, 3', 'longer', any_length}
    'qn.slider', {}, {'slip', 2, 'stiffness', 3}, {}
    'qn.spectrogram', {'TIME', 'SIGNAL'}, {t, t, 'seconds', 0.4, 'overlap', 0.5, 'window', 'none', 'mean', 'keep'}, {'seconds', 'empty', optional}
    'qn.spectrogram', {'RES', 'C'}, {res, row}, {}
    'qn.spectrum', {'TIME', 'SIGNAL'}, {t, [t; t + 1], 'window', 'hann', 'mean', 'keep'}, {}
    'qn.srs', {'TIME', 'ACC', 'HERTZ', 'Q'}, {t, t, [1 2], 5}, {'HERTZ', 'longer|transposed', any_length; 'Q', 'inf', 'undamped'}
    'qn.srs', {'RES', 'C', 'HERTZ', 'DOFS'}, {moved, row, [1 2]}, {'HERTZ', 'longer|transposed', any_length; 'C', 'named', 'qn.acceleration says it'}
    'qn.static', {'MODEL', 'LOAD', 'ELEMENTS', 'Q0'}, {model, [1 2 3], spring, [0.1 0 0]}, {}
    'qn.stop', {}, {'gap', [0.1 0.2], 'stiffness', [1 2], 'inner', 0}, {}
    'qn.sweep', {'F', 'CASES'}, {@(p) 1, [1 2], 'folder', '', 'engine', 'serial', 'workers', 1, 'again', false, 'trust', false, 'progress', false, ...
                                 'sbatch', '', 'wait', true}, ...
      {'CASES', '.*', anything; 'workers', 'empty', optional}
    'qn.unbalance', {'MODEL', 'DOFS', 'ME'}, {model, [1 2; 2 3], [1 2], 'phase', [0 1], 'speed', 30, 'angle', 1}, ...
      {'speed', 'empty', '"profile" is then said to be missing'}
    'qn.unbalance', {'MODEL', 'DOFS', 'ME'}, {model, [1 2], 1, 'profile', [0 1 3; 1 2 4]}, ...
      {'profile', 'empty', '"speed" is then said to be missing'; 'profile', 'longer', any_length}
    'qn.table', {'X', 'F'}, {[1 2 4], [1 3 2], 'merge', 0.1, 'monotonic', 'none', 'plot', false}, {}
    'qn.unpack', {'S'}, {[1 2; 3 4; 5 6]}, {'S', '.*', 'a matrix stands for itself'}
    'qn.velocity', {'RES', 'C'}, {res, row}, {}
    'qn.version', {}, {}, {}
    'qn.write_unv58', {'FILE', 'X', 'SIGNALS'}, {file, t, [t; t + 1], 'type', 'time', 'quantity', 'force', 'unit', 'N', 'node', [1 2], ...
                                                 'direction', [1 -2], 'description', 'a', 'date', ''}, {'SIGNALS', 'complex', 'may be complex'}
    'qn.zener', {}, {'stiffness', 1, 'spring', 2, 'damper', 3}, {}
  };
  rows = [rows; laws()];
end

% Each law with the parameters that it is listed with.
function rows = laws ()
  rows = cell (0, 4);
  for l = qn.impl.law_list ()
    args = {l.kind};
    for k = 1:size (l.parameters, 1)
      value = 2 - strcmp (l.parameters{k, 3}, 'sign');
      if ~isempty (strfind (l.parameters{k, 3}, 'list')), value = [1 2]; end
      if strcmp (l.parameters{k, 3}, 'knots'), value = 1:k + 1; end
      if strcmp (l.parameters{k, 3}, 'grid'), value = [1 2 3; 4 5 6]; end
      if strcmp (l.parameters{k, 3}, 'fraction'), value = 0.5; end
      if any (strcmp (l.parameters{k, 3}, {'text', 'file', 'function', 'whole', 'count'})), value = user_law_value (l.parameters{k, 3}); end
      args = [args, l.parameters(k, 1), {value}];
    end
    free = {};
    if any (strcmp (l.parameters(:, 3), 'free list')), free = {'parameters', 'longer|empty', 'as many as the law takes'}; end
    rows(end + 1, :) = {'qn.law', {'KIND'}, args, free};
  end
end
