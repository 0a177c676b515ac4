% QN.REPORT_HOST  one page about this machine to send to us: versions, libraries, self-test, writes in place, objects, unloading
%
% Purpose
%   Run it where quarn was not tried before, in MATLAB above all, and send the page with your report. It tells the versions, which
%   libraries share the process, what qn.selftest says, where results that are written in place arrive, whether old-style objects work,
%   and whether the module can be unloaded and loaded again after parallel products. The page is printed while it is made: what was
%   seen is on the screen even if the session ends in the middle. No file is written. Folders are named: look it over before you send it.
%
% Calls
%   qn.report_host ()
%   TEXT = qn.report_host ()
%
% Input
%   None.
%
% Output
%   TEXT   the page
%
% Errors
%   none: what does not work is said in the page. With handles registered the module is not unloaded
%
% Example
%   text = qn.report_host ();
%
% See also qn.selftest, qn.version, install_quarn
function text = report_host ()
  parts = {'versions', @qn.impl.host.versions
           'libraries in this process', @qn.impl.host.libraries
           'self-test', @selftest_page
           'errors of the module', @qn.impl.host.error_texts
           'writes in place, in a function', @qn.impl.host.writes_in_functions
           'writes in place, at the prompt', @qn.impl.host.writes_at_prompt
           'old-style objects', @qn.impl.host.objects
           'unloading (should the session end here, please send what is above)', @qn.impl.host.unloading};
  page = say ('', sprintf ('quarn: report of a host, %s', datestr (now (), 'yyyy-mm-dd')));
  for k = 1:size (parts, 1)
    page = say (page, sprintf ('\n%s', parts{k, 1}));
    try
      lines = parts{k, 2} ();
    catch err
      lines = {['FAILED: ' regexprep(err.message, '\s+', ' ')]};
    end
    for line = lines(:).', page = say (page, ['  ' line{1}]); end
  end
  if nargout > 0, text = page; end
end

function page = say (page, line)
  fprintf ('%s\n', line);
  page = sprintf ('%s%s\n', page, line);
end

function lines = selftest_page ()
  page = evalc ('[passed, found] = qn.selftest ();');
  lines = regexprep (strsplit (strtrim (page), sprintf ('\n')), '^  ', '');
end
