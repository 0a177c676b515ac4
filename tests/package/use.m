% A fresh session loads the installed package and works with it: nothing of the source tree is on its path.
here = fileparts (mfilename ('fullpath'));
addpath (here);
sandbox ();
pkg ('load', 'quarn');
rmpath (here);
prefix = getenv ('PACKAGE_PREFIX');

file = which ('quarn');
[~, ~, kind] = fileparts (file);
assert (strncmp (file, prefix, numel (prefix)) && strcmp (kind, '.mex'), 'quarn is %s', file);
file = which ('qn.run');
assert (strncmp (file, prefix, numel (prefix)), 'qn.run is %s', file);
assert (quarn () == 1.0001);
assert (~isempty (strfind (evalc ('help quarn'), 'kernels of structural-dynamics time simulation')));
fprintf ('ok      pkg load, help\n');

% A mass hits a stop at 2 mm and swings on: without damping its energy stays.
model = qn.modal ((2 * pi * 5) ^ 2, 1);
stop = qn.gap ('gap', 0.002, 'stiffness', 5e4);
sim = qn.simulation (model, 'step', 1e-4, 'until', 2, 'u0', -0.01, 'elements', {stop, qn.observe(model, 1)});
res = qn.run (sim, 'progress', false);
x = qn.displacement (res, 1);
k = (2 * pi * 5) ^ 2;
% k/2 x^2 + 5e4/2 (x - 0.002)^2 = k/2 0.01^2
a = k + 5e4;
b = -2 * 5e4 * 0.002;
c = 5e4 * 0.002 ^ 2 - k * 0.01 ^ 2;
turn = (-b + sqrt (b ^ 2 - 4 * a * c)) / (2 * a);
assert (abs (max (x) - turn) < 1e-3 * turn, 'turns at %g, by its energy at %g', max (x), turn);
assert (abs (min (x) + 0.01) < 1e-4);
fprintf ('ok      a mass against a stop turns at %.4f mm, by its energy at %.4f mm\n', 1e3 * max (x), 1e3 * turn);

% INDEX names every function that users call.
listed = strsplit (fileread (fullfile (prefix, ['quarn-' getenv('PACKAGE_VERSION')], 'packinfo', 'INDEX')), sprintf ('\n'));
listed = strtrim (listed(strncmp (listed, ' ', 1)));
top = fullfile (prefix, ['quarn-' getenv('PACKAGE_VERSION')]);
places = {'', ''; '+qn', 'qn.'; fullfile('+qn', '+plot'), 'qn.plot.'};
count = 0;
for p = 1:size (places, 1)
  names = dir (fullfile (top, places{p, 1}, '*.m'));
  for n = 1:numel (names)
    if strcmp (names(n).name, 'Contents.m'), continue, end  % a text, no function
    name = [places{p, 2} names(n).name(1:end - 2)];
    assert (any (strcmp (listed, name)), '%s is not in INDEX', name);
    count = count + 1;
  end
end
assert (count > 40);
for n = 1:numel (listed)
  assert (~isempty (which (listed{n})) || ~isempty (which (['@chandle/' listed{n}])), 'INDEX names %s, which is not there', listed{n});
end
fprintf ('ok      INDEX, %d functions\n', count);
