% TEXT = LAW_TEXT (LAW)  one law in words
function text = law_text (law)
  p = law.parameters;
  switch law.kind
    case 'power'
      text = sprintf ('power law, force = %g * x^%g', p.stiffness, p.exponent);
    case 'exponential'
      text = sprintf ('exponential law, force = %g * %g^x', p.scale, p.base);
    case 'table'
      if numel (p.displacement) == 1
        text = sprintf ('constant force of %g N', p.force);
      else
        slope = diff (p.force) ./ diff (p.displacement);
        text = sprintf ('table of %d knots from %g to %g m, forces from %g to %g N; goes on with %g N/m below and %g N/m above', ...
                        numel (p.displacement), p.displacement([1 end]), min (p.force), max (p.force), slope([1 end]));
      end
    case 'maxwell'
      branches = sprintf (', %g N/m with %g N s/m', [p.springs, p.dampers].');
      text = sprintf ('spring of %g N/m beside Maxwell branches (%d)%s', p.stiffness, numel (p.springs), branches);
    case 'dahl'
      text = sprintf ('Dahl friction, %g N/m, slip force %g N, exponent %g', p.stiffness, p.slip, p.exponent);
    case 'stickslip'
      text = sprintf ('stick-slip contact, %g N/m, slip force %g N, %g N/m beside it, slider held by %g N/m', p.contact, p.slip, ...
                      p.stiffness, p.ground);
    case 'clima2'
      text = sprintf (['two Dahl branches, friction %g, exponent %g, %g N/m taken off; slip and stiffness from a table of %d knots ' ...
                       'from %g to %g m (%g to %g N, %g to %g N/m), offset %g N'], p.friction, p.exponent, p.stiffness, ...
                      numel (p.displacement), p.displacement([1 end]), min (p.normal), max (p.normal), min (p.growth), ...
                      max (p.growth), p.offset);
  end
  if ~isempty (law.note), text = sprintf ('%s: %s', law.note, text); end
end
