% Every law against its plain model to the bit: random sizes, parameters, states and options, in "residual" and in the integrator.
function tests = suite_laws_random ()
  tests = localfunctions ();
end

function test_maxwell_in_residual (), residual_like_model ('Maxw', 1); end
function test_maxwell_in_the_integrator (), newmark_like_model ('Maxw', 2); end
function test_dahl_in_residual (), residual_like_model ('DahlC', 3); end
function test_dahl_in_the_integrator (), newmark_like_model ('DahlC', 4); end
function test_stick_slip_in_residual (), residual_like_model ('sts', 5); end
function test_stick_slip_in_the_integrator (), newmark_like_model ('sts', 6); end
function test_clima2_in_residual (), residual_like_model ('Clima2', 7); end
function test_clima2_in_the_integrator (), newmark_like_model ('Clima2', 8); end
function test_power_in_residual (), residual_like_model ('Power', 9); end
function test_power_in_the_integrator (), newmark_like_model ('Power', 10); end
function test_exponential_in_residual (), residual_like_model ('Expon', 11); end
function test_exponential_in_the_integrator (), newmark_like_model ('Expon', 12); end
function test_table_in_residual (), residual_like_model ('Table', 13); end
function test_table_in_the_integrator (), newmark_like_model ('Table', 14); end
function test_damper_in_residual (), residual_like_model ('Damper', 15); end
function test_damper_in_the_integrator (), newmark_like_model ('Damper', 16); end
function test_radial_contact_in_residual (), residual_like_model ('Radial', 31); end
function test_radial_contact_in_the_integrator (), newmark_like_model ('Radial', 32); end
function test_oil_film_in_residual (), residual_like_model ('Journal', 33); end
function test_oil_film_in_the_integrator (), newmark_like_model ('Journal', 34); end
function test_impact_in_residual (), residual_like_model ('Contact', 17); end
function test_impact_in_the_integrator (), newmark_like_model ('Contact', 18); end
function test_surface_in_residual (), residual_like_model ('Surface', 35); end
function test_surface_in_the_integrator (), newmark_like_model ('Surface', 36); end
function test_user_in_residual (), residual_like_model ('User', 115); end
function test_user_in_the_integrator (), newmark_like_model ('User', 116); end
function test_bouc_wen_in_residual (), residual_like_model ('BoucWen', 19); end
function test_bouc_wen_in_the_integrator (), newmark_like_model ('BoucWen', 20); end

% 150 set-ups, three evaluations of each.
function residual_like_model (word, seed)
  randomize (seed);
  for trial = 1:rounds (150)
    n = randi (9);
    e = random_law_element (word, n);
    % Velocities of zero are among them.
    expect_law_like_model (e, randn (n, 3), round (16 * randn (n, 3)) / 8);
  end
end

% 60 set-ups, six steps of each.
function newmark_like_model (word, seed)
  randomize (seed);
  for trial = 1:rounds (60)
    n = randi (9);
    modes = randi (n);
    mass = 1 + rand (modes, 1);
    run = struct ('model', struct ('FNL', randn (n + 4, 1)), 'opt', zeros (1, 2));
    [integrator, run.mem, run.out] = newmark_setup (mass, 0.1 * mass, 0 * mass, randn (modes, 1), randn (1, 7), 0.01, 0.25, 0.5, [3 6], n);
    run.mem.uva.FNL = zeros (n + 4, 1);
    run.list = {integrator, random_law_element(word, n)};
    run.u = 0.1 * randn (n, 1);
    run.v = randn (n, 1);
    run.a = randn (n, 1);
    same_as_model (run);
  end
end

function randomize (seed)
  rand ('twister', 420 + seed);
  randn ('twister', 420 + seed);
end
