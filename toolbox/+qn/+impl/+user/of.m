% LAW = OF (P, KIND)  the law with the parameters P
function law = of (p, kind)
  law = struct ('kind', kind, 'parameters', p, 'note', '');
end
