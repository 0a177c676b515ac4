% TEXT = LINE_OF (T, K, WHAT)  line K of a file; WHAT says in the error what was expected where the file has ended
function text = line_of (t, k, what)
  n = numel (t.first);
  if k > n, qn.impl.formats.refuse (t, n, 'the file ends early: %s expected after this line', what); end
  text = t.text(t.first(k):t.last(k));
end
