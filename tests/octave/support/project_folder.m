% FOLDER = PROJECT_FOLDER ()  the root of the sources that these tests belong to
function folder = project_folder ()
  folder = fileparts (fileparts (fileparts (fileparts (mfilename ('fullpath')))));
end
