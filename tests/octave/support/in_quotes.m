% TEXT = IN_QUOTES (PATH)  a path as a word for a shell
function text = in_quotes (path)
  text = ['''' strrep(path, '''', '''\''''') ''''];
end
