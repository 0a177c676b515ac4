% COMMANDS = EVERY_COMMAND ()  one function for each command of the module and for each state that a command can leave it in
%
% Struct array with the fields name and run. A run may leave handles registered and worker threads alive; an error that belongs to it is
% caught in it, so that it ends well when everything is as it should be.
function commands = every_command ()
  rows = {'presence', @() quarn (); 'ismex', @() quarn ('ismex'); 'cvs', @() quarn ('cvs'); 'omp', @() quarn ('omp'); 'version', @() quarn ('version'); ...
          'nlv1', @reserved_word; 'unknown word', @() refused ('nothing', 1); ...
          'residual of matrices', @residual_of_matrices; 'residual of a model', @residual_of_a_model; ...
          'residual with a callback', @residual_with_a_callback; 'residual of handles', @residual_of_handles; ...
          'residual of an element', @residual_of_an_element; 'residual refused', @() refused ('residual', zeros (3, 1), {1, 2}, 3); ...
          'chandleset', @register_all; 'chandleset refused', @() refused ('chandleset', 5, struct ()); ...
          'chandleget', @read_handles; 'chandleget of none', @() refused ('chandleget', 1e6); ...
          'chandleget with a callback that fails', @failing_callback; 'chandleclear', @register_and_clear; ...
          'chandleclear in a callback', @clear_in_a_callback; 'chandlediagnewmark', @integrate; ...
          'chandlediagnewmark of handles', @integrate_handles; 'chandlediagnewmark refused', @() refused ('chandlediagnewmark', {}, 1); ...
          'energies', @energies_of_a_mode; 'energies refused', @() refused ('energies', ones (2, 3)); ...
          'tbbp on worker threads', @worker_product; 'tbbp that fails on worker threads', @failing_product; ...
          'residual on worker threads', @parallel_residual; 'setsparse', @set_sparse; ...
          'c<-a''*b', @() quarn ('c<-a''*b', ones (3, 2), matrix_lines (magic (3))); ...
          'abc', @() quarn ('abc', ones (3, 2) * 1i, matrix_lines (magic (3)), ones (3, 2), int32 ([1; 0; 0])); ...
          'directzr', @() quarn ('directzr', ones (3, 3) * 1i, {1}, ones (3, 3) * 1i, ones (3, 3) * 1i); ...
          'dtkt', @() refused ('dtkt', ones (3, 1)); 'ta''*k*tb', @() refused ('ta''*k*tb', ones (3, 1), matrix_lines (eye (3)), ones (3, 1)); ...
          'igsm', @() refused ('igsm', 1)};
  commands = cell2struct (rows, {'name', 'run'}, 2);
end

function reserved_word ()
  quarn ('nlv1', struct ('unl', 1));
end

function refused (varargin)
  try
    quarn (varargin{:});
  catch
    return
  end
  error ('not refused: quarn (''%s'', ...)', varargin{1});
end

function residual_of_matrices ()
  r = zeros (3, 1);
  k = matrix_lines (magic (3));
  [kinetic, potential] = quarn ('residual', r, {k, k, k}, ones (3, 1), ones (3, 1), ones (3, 1), [0.5 0.25]);
  expect_equal (r, 3 * 15 * ones (3, 1) + 0.75 * 15);
end

function residual_of_a_model ()
  k = matrix_lines (eye (3));
  e = struct ('type', '', 'c', matrix_lines (eye (3), true), 'unl', zeros (3, 1), 'vnl', zeros (3, 1));
  model = struct ('K', {{k, k, k}}, 'FNL', zeros (3, 1), 'NL', {{'x', 1, e}});
  r = zeros (3, 1);
  quarn ('residual', r, model, ones (3, 1), ones (3, 1), ones (3, 1));
  expect_equal (r, 3 * ones (3, 1));
end

function residual_with_a_callback ()
  e = struct ('b', matrix_lines (eye (3)), 'StoreFNL', 0);
  e.Fu = @(varargin) [1; 2; 3] * quarn ('ismex');
  r = zeros (3, 1);
  quarn ('residual', r, nl_model (e), ones (3, 1), ones (3, 1), ones (3, 1), [], []);
  expect_equal (r, [1; 2; 3]);
end

function residual_of_handles ()
  h = registered ({typed(1, eye (3)), typed(2, eye (3)), typed(3, eye (3))});
  r = zeros (3, 1);
  quarn ('residual', r, h, ones (3, 1), ones (3, 1), ones (3, 1), [0 0]);
  expect_equal (r, 3 * ones (3, 1));
end

function residual_of_an_element ()
  h = registered ({spring_element(1, 1, 3, [law_code('Power') 2 1])});
  r = zeros (3, 1);
  quarn ('residual', r, h, ones (3, 1), ones (3, 1), ones (3, 1));
  expect_equal (r, [2; 0; 0]);
end

function register_all ()
  run = small_run ();
  registered ([run.list, {spring_element(1, 1, 3, [law_code('Power') 2 1]), typed(2, eye (3))}]);
end

function read_handles ()
  h = quarn ('chandleset', 1, struct ('a', 5));
  expect_equal (quarn ('chandleget', h), struct ('a', 5));
  expect_equal (quarn ('chandleget', @(s, x) s.a + x, h, 2), 7);
end

function failing_callback ()
  h = quarn ('chandleset', 1, struct ('a', 5));
  expect_error (@() quarn ('chandleget', @(varargin) error ('own:id', 'own text'), h), 'own:id', 'own text');
end

function register_and_clear ()
  h = quarn ('chandleset', 1, struct ('a', 5));
  register_all ();
  quarn ('chandleclear', h);
  quarn ('chandleclear');
end

function clear_in_a_callback ()
  h = quarn ('chandleset', 1, struct ('a', onCleanup (@() quarn ('chandleget'))));
  expect_equal (quarn ('chandleget', @(value) cleared (), h), true);
end

function gone = cleared ()
  quarn ('chandleclear');
  clear ('quarn');
  keys = quarn ('chandleget');
  gone = false;
  try
    quarn ('chandleget', keys(end));
  catch
    gone = true;
  end
end

function integrate ()
  run = small_run ();
  run.list{4} = spring_element (1, 1, 3, [law_code('Power') 2 1]);
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function integrate_handles ()
  run = small_run ();
  quarn ('chandlediagnewmark', registered (run.list), run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
end

function energies_of_a_mode ()
  [e, v] = quarn ('energies', [0 1], 0, 0, [1 0.5], 1, 0, 1, [0 0]);
  expect_equal ({e, v}, {[0.5 0.5; 0 0; 0 0; 0 0], [1 1]});
end

function failing_product ()
  [s, n] = long_lines ();
  s.ir(490000) = int32 (n);
  refused ('tbbp', s, ones (n, 1), zeros (n, 1));
end

function parallel_residual ()
  [s, n] = long_lines ();
  r = zeros (n, 1);
  quarn ('residual', r, registered ({typed(1, s)}), ones (n, 1), ones (n, 1), []);
  expect_equal (r, 50 * ones (n, 1));
end

function set_sparse ()
  s = matrix_lines (magic (3));
  s = fresh (s);
  quarn ('setsparse', s, s.ir, s.jc, s.pr * 2);
end
