% L = STICKSLIP_LAW ()  the module's stick-slip law, in whole newtons; the fields are those of qn.impl.law_list
function l = stickslip_law ()
  parameters = {'contact', '<required>', 'number'
                'slip', '<required>', 'positive'
                'stiffness', 0, 'number'
                'ground', 0, 'number'};
  l = struct ('kind', 'stickslip', 'keyword', 'sts', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'traits', @traits, 'stored', @stored, 'reserve', [], 'check', @check, 'at_rest', []);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('sts'); 0; step; p.stiffness; p.contact; p.slip; p.ground];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('stiffness', opt(4), 'contact', opt(5), 'slip', opt(6), 'ground', opt(7));
end

function text = words (p)
  text = sprintf ('stick-slip contact, %g N/m, slip force %g N, %g N/m beside it, slider held by %g N/m', p.contact, p.slip, ...
                  p.stiffness, p.ground);
end

function t = traits (p)
  t = struct ('rows', 1, 'forces', 1, 'width', 2, 'states', 1, 'memory', true);
end

function k = stiffest (p, x, state)
  k = p.stiffness + p.contact;
end

function v = stored (p, x, f, state, h)
  v = p.stiffness * x .^ 2 / 2 + p.contact * (x - state) .^ 2 / 2;
end

% A slider that is drawn along has moved in the result.
function found = check (law, x, h, state)
  found = cell (0, 3);
  p = law.parameters;
  if p.slip < 10
    found = {'stickslip_coarse', 'warning', ...
             sprintf('it compares whole newtons: a slip force of %g N is too coarse; use qn.slider', p.slip)};
  end
  if isempty (state)
    found(end + 1, :) = {'stickslip_slips', 'note', ...
                         sprintf(['it acts as a spring of %g N/m up to %g m, where it slips: from there on its force changes sign in ' ...
                                  'each slipping step. Meant for a contact that sticks; for friction that slides take qn.slider'], ...
                                 p.stiffness + p.contact, p.slip / abs (p.contact))};
  elseif any (state(:) ~= state(1))
    found(end + 1, :) = {'stickslip_slips', 'warning', ...
                         sprintf(['it slips, at %g N, and this law throws the slider to the other side of the contact in each slipping ' ...
                                  'step: the force jumps between %g and %g N, which no shorter step mends. For Coulomb friction ' ...
                                  'take qn.slider'], p.slip, -p.slip, p.slip)};
  end
end
