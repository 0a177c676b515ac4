% QN.DESCRIBE  a law, a handle, a model, a set-up or a result in words, with its numbers
%
% Purpose
%   Says what is in packed vectors and structures, as it would be written down for a run: of a model its size, frequencies, damping and
%   rotation; of a set-up also loads, elements with law and place, scheme, steps, initial state and what is kept; of a result also how it
%   ended, the largest motion, the elements' forces and what qn.check finds. qn.report says the same on its page.
%
% Calls
%   qn.describe (X)
%   TEXT = qn.describe (X)
%
% Input
%   X      a law or a bank of laws; a chandle vector; the index of a handle; or the value of one, as qn.element, qn.pack and
%          quarn ('chandleget', i) give them; a model of qn.modal, a rotor of qn.rotor, a set-up of qn.simulation, a result of qn.run
%
% Output
%   TEXT   one line, for several laws or handles one line each; for models, rotors, set-ups and results a heading and a line for each thing
%          that is said. A place that is none of one, two or few degrees of freedom is "a row of its own". Without an output argument it is
%          printed
%
% Errors
%   qn:input  X is none of these, or several structures other than laws
%
% Example
%   qn.describe (qn.stop ('gap', 0.015, 'stiffness', 1e8));
%   text = qn.describe (qn.element (qn.cubic ('stiffness', 1e9), [1 0 -1]));
%   model = qn.modal (1e6 * [2 -1; -1 1], 3 * eye (2), 'damping', 0.02);
%   qn.describe (model);
%   sim = qn.simulation (model, 'step', 1e-4, 'until', 0.1, 'load', {qn.load_at(model, 2), @(t) 500 * sin(300 * t)});
%   qn.describe (qn.run (sim, 'progress', false));
%
% See also qn.law, qn.element, qn.modal, qn.rotor, qn.simulation, qn.run, qn.report, chandle
function text = describe (x)
  if nargin < 1, error ('qn:input', 'qn.describe: something to describe expected; see help qn.describe'); end
  if isa (x, 'chandle')
    lines = cell (1, numel (x));
    for k = 1:numel (x), lines{k} = one_handle (remi (x, k)); end
  elseif isstruct (x) && isfield (x, 'kind')
    lines = arrayfun (@qn.impl.law_text, x, 'uniformoutput', false);
  elseif isstruct (x) && numel (x) ~= 1
    error ('qn:input', 'qn.describe: one structure or laws expected, got %s structures; describe them one by one', mat2str (size (x)));
  elseif isstruct (x)
    lines = {of_struct(x)};
  elseif isa (x, 'v_handle')
    lines = {qn.impl.value_text(x)};
  elseif isnumeric (x)
    lines = {one_handle(qn.impl.numbers ('qn.describe', 'X', x, [1 1], 'from', 0, 'whole'))};
  else
    error ('qn:input', 'qn.describe: a law, a handle or its value, a model, a set-up or a result expected, got class %s', class (x));
  end
  lines = strjoin (lines(:).', sprintf ('\n'));
  if nargout > 0
    text = lines;
  else
    fprintf ('%s\n', lines);
  end
end

% By the fields that are read: what lacks one of them is said to be a structure.
function text = of_struct (x)
  of_model = {'shapes', 'w', 'stiffness', 'damping'};
  of_sim = {'model', 'scheme', 'step', 'time', 'saved', 'loads', 'shapes', 'notes', 'elements', 'states', 'start'};
  of_result = {'sim', 'time', 'q', 'force', 'time_end', 'complete', 'diverged', 'seconds'};
  if all (isfield (x, of_result)) && all (isfield (x.sim, of_sim))
    text = qn.impl.words.lines ('result of a run', [qn.impl.words.simulation(x.sim); qn.impl.words.result(x)]);
  elseif all (isfield (x, of_sim))
    text = qn.impl.words.lines ('set-up of a run', qn.impl.words.simulation (x));
  elseif all (isfield (x, of_model))
    text = qn.impl.words.lines ('modal model', qn.impl.words.model (x));
  elseif all (isfield (x, {'parts', 'places', 'nodes', 'stator', 'speed', 'N'}))
    text = qn.impl.words.lines ('rotor', qn.impl.words.rotor (x));
  else
    text = qn.impl.value_text (x);
  end
end

function text = one_handle (i)
  if any (quarn ('chandleget') == i)
    text = sprintf ('handle %d: %s', i, qn.impl.value_text (quarn ('chandleget', i)));
  else
    text = sprintf ('handle %d: free', i);
  end
end
