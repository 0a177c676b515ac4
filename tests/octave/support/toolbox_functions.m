% LIST = TOOLBOX_FUNCTIONS ()  files that users call, as rows {name, file}
function list = toolbox_functions ()
  toolbox = fileparts (fileparts (which ('qn.run')));
  folders = {'', ''; '+qn', 'qn.'; fullfile('+qn', '+plot'), 'qn.plot.'};
  list = {'chandle', fullfile(toolbox, '@chandle', 'chandle.m'); 'v_handle', fullfile(toolbox, '@v_handle', 'v_handle.m'); ...
          'delete', fullfile(toolbox, '@chandle', 'delete.m')};
  for k = 1:size (folders, 1)
    files = dir (fullfile (toolbox, folders{k, 1}, '*.m'));
    for f = files(~strcmp ({files.name}, 'Contents.m')).'
      list(end + 1, :) = {[folders{k, 2} f.name(1:end - 2)], fullfile(toolbox, folders{k, 1}, f.name)};
    end
  end
end
