% The page of a run: its words, its pictures, and that nothing in it is read as markup that is not meant so.
function tests = suite_toolbox_report ()
  use_toolbox ();
  tests = localfunctions ();
end

function res = stopped ()
  model = qn.modal (1e4 * [2 -1; -1 1], eye (2), 'damping', 0.02);
  sim = qn.simulation (model, 'step', 2e-4, 'until', 0.1, 'load', {qn.load_at(model, 2), @(t) 300 * sin(60 * t)}, 'elements', ...
                       {qn.gap('gap', 1e-3, 'stiffness', 1e6), qn.observe(model, 2); qn.slider('slip', 10, 'stiffness', 1e5), qn.observe(model, 1)});
  res = qn.run (sim, 'progress', false);
end

function text = page_of (res, varargin)
  file = [tempname() '.html'];
  clean = onCleanup (@() delete (file));
  qn.report (res, file, varargin{:});
  text = fileread (file);
end

function test_the_page_says_what_was_run_and_what_came_out ()
  res = stopped ();
  text = page_of (res, 'title', 'Pipe at its stop', 'note', {'Drawing 12.', 'Load case 3.'}, 'date', '22 November', 'pictures', false);
  for part = {'<h1>Pipe at its stop</h1>', '<p class="date">22 November</p>', '<p>Drawing 12.</p>', '<p>Load case 3.</p>', ...
              '2 modal coordinates of 2 degrees of freedom', '0.02 of critical', 'average acceleration', '500 steps from 0 to 0.1 s', ...
              'stop behind a gap of 0.001 m', 'slip force 10 N', 'The run is complete: 0.1 s'}
    expect_in (text, part{1});
  end
  v = qn.version ();
  expect_in (text, ['<td>quarn ' v.toolbox '</td>']);
  expect_in (text, sprintf ('%.5g to %.5g Hz', res.sim.model.hertz));
  u = qn.displacement (res, sparse (qn.observe (res.sim.model, 2)));
  expect_in (text, sprintf ('<td>at element 1</td><td class="number">%.5g</td>', min (u)));
  c = qn.contacts (res, 1);
  [unused, k] = max (abs ([c.peak]));
  expect_in (text, sprintf (['<tr><td class="number">1</td><td class="number">1</td><td class="number">%d</td><td class="number">%.5g</td>' ...
                             '<td class="number">%.5g</td><td class="number">%.5g</td><td class="number">%.5g</td></tr>'], numel (c), ...
                            c(1).start, max ([c.duration]), c(k).peak, sum (abs ([c.impulse]))));
  e = qn.energies (res);
  expect_in (text, sprintf ('<td>work of the loads</td><td class="number">%.5g</td>', e.work(end)));
  expect_in (text, sprintf ('<td>dissipated in elements</td><td class="number">%.5g</td>', e.dissipated(end)));
  if ~isempty (strfind (text, 'not shown')), error ('something is not shown'); end
end

function test_texts_of_the_user_are_no_markup ()
  bad = '<script>alert("1")</script> & ''x''';
  text = page_of (stopped (), 'title', bad, 'note', bad, 'names', {bad, bad}, 'date', bad, 'pictures', false);
  expect_equal (numel (strfind (text, '<script')), 0);
  expect_equal (numel (strfind (text, '&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; &amp; &#39;x&#39;')), 6);
end

function test_the_page_is_one_well_formed_document_that_asks_for_nothing ()
  text = page_of (stopped (), 'pictures', false);
  if ~isempty (regexp (text, 'https?:|src="(?!data:)|url\(|@import|<link', 'once')), error ('it asks for something'); end
  tags = regexp (regexprep (text, '<(meta|img|!DOCTYPE)[^>]*>', ''), '</?[a-z0-9]+', 'match');
  open = {};
  for tag = tags
    if tag{1}(2) ~= '/'
      open{end + 1} = tag{1}(2:end);
    elseif isempty (open) || ~strcmp (open{end}, tag{1}(3:end))
      error ('%s> closes nothing', tag{1});
    else
      open(end) = [];
    end
  end
  expect_equal (numel (open), 0);
  for part = {'<meta charset="utf-8">', '@media print', 'break-inside: avoid', 'table-header-group'}, expect_in (text, part{1}); end
end

function test_findings_and_what_cannot_be_shown_are_said ()
  model = qn.modal (1e4, 1, 'damping', 0.02);
  row = qn.observe (model, 1);
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 100, 'every', 5, 'v0', 1e-3, 'elements', {qn.gap('gap', 20, 'stiffness', 1e5), row});
  text = page_of (qn.run (sim, 'progress', false, 'check', false), 'pictures', false);
  expect_in (text, '<td>never_closes</td>');
  expect_in (text, 'no force that is zero at times and acts at others');
  expect_in (text, '<p>not shown: qn.energies');
  sim = qn.simulation (model, 'step', 1e-3, 'steps', 100, 'v0', 1);
  part = qn.run (sim, 'progress', false, 'piece', 30, 'stop', @(r) true);
  text = page_of (part, 'pictures', false);
  expect_in (text, 'Not complete: the run came to 0.03 s of 0.1 s.');
  expect_in (text, '<td>degree of freedom 1</td>');
  expect_in (text, 'none: the model is linear');
end

% Bytes of the pictures, read with the host's own decoder, are pictures of the size of a page.
function test_pictures_are_inside ()
  text = page_of (stopped ());
  found = regexp (text, 'src="data:image/png;base64,([A-Za-z0-9+/=]*)"', 'tokens');
  expect_equal (numel (found), 4);
  expect_equal (numel (regexp (text, '<figcaption>', 'match')), 4);
  for k = [1 4]
    bytes = matlab.net.base64decode (found{k}{1});
    [file, clean] = put_bytes (bytes);
    picture = imread (file);
    expect_equal ([size(picture, 1), size(picture, 2)], [420 900]);
    share = mean (picture(:) < 200);
    if share < 0.003 || share > 0.3, error ('%g of picture %d is dark', share, k); end
    clear clean
  end
end

function test_bytes_become_text_as_the_standard_says ()
  pairs = {'f', 'Zg=='; 'fo', 'Zm8='; 'foo', 'Zm9v'; 'foob', 'Zm9vYg=='; 'fooba', 'Zm9vYmE='; 'foobar', 'Zm9vYmFy'};
  for k = 1:size (pairs, 1), expect_equal (qn.impl.page.base64 (uint8 (pairs{k, 1})), pairs{k, 2}); end
  expect_equal (qn.impl.page.base64 (uint8 ([255 254 253 0])), '//79AA==');
end

function test_wrong_arguments_are_refused ()
  res = stopped ();
  expect_error (@() qn.report (res, 'page.txt'), 'qn:input', '~ends in .html or .htm');
  expect_error (@() qn.report (3, 'page.html'), 'qn:input', '~expects the result of qn.run');
  expect_error (@() qn.report (res), 'qn:input', '~a result and the name of a file');
  expect_error (@() qn.report (res, 'page.html', 'note', 3), 'qn:input', '~"note" and "names" must be texts');
  expect_error (@() qn.report (res, 'page.html', 'date', 3), 'qn:input', '~"title" and "date" must be texts');
  expect_error (@() qn.report (res, 'page.html', 'names', {'a'}), 'qn:input', '~2 rows are drawn, "names" has 1 texts');
  expect_error (@() qn.report (res, fullfile (tempname (), 'page.html'), 'pictures', false), 'qn:input', '~cannot write');
end

% A browser draws the page, pictures included: the blue of the first curve is there.
function test_a_browser_shows_the_page ()
  [none, browser] = system ('command -v chromium');
  if none, skip_test ('no browser (Debian: chromium)'); end
  [folder, clean] = new_folder ();
  qn.report (stopped (), fullfile (folder, 'page.html'));
  [failed, said] = system (sprintf (['timeout 60 %s --headless --no-sandbox --disable-gpu --user-data-dir=%s/profile --window-size=800,2400 ' ...
                                     '--screenshot=%s/page.png file://%s/page.html 2>&1'], strtrim (browser), folder, folder, folder));
  if failed || ~exist (fullfile (folder, 'page.png'), 'file'), error ('the browser failed: %s', said); end
  x = double (imread (fullfile (folder, 'page.png')));
  expect_equal ([size(x, 1), size(x, 2)], [2400 800]);
  blue = x(:, :, 1) < 40 & abs (x(:, :, 2) - 114) < 40 & abs (x(:, :, 3) - 178) < 40;
  if sum (blue(:)) < 100, error ('%d blue points', sum (blue(:))); end
  dark = any (x < 100, 3);
  dark = mean (dark(:));
  if dark < 0.005 || dark > 0.3, error ('%g of the page is dark', dark); end
end

% The device of that name takes nothing, as a full disk.
function test_a_full_disk_is_said ()
  if ~exist ('/dev/full', 'file'), skip_test ('there is no /dev/full'); end
  res = stopped ();
  for ending = {'.html', '.mtx', '.unv'}
    file = [tempname() ending{1}];
    clean = onCleanup (@() delete (file));
    [err, why] = symlink ('/dev/full', file);
    if err ~= 0, error ('no link could be made: %s', why); end
    writers = {@() qn.report (res, file, 'pictures', false), @() qn.mmwrite (file, eye (3)), @() qn.write_unv58 (file, 1:3, 4:6)};
    writer = writers{strcmp (ending{1}, {'.html', '.mtx', '.unv'})};
    expect_error (writer, 'qn:input', '~could not be written as a whole; is the disk full\?');
    clear clean
  end
end
