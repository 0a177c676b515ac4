% [LAW, STEP] = UNPACK_LAW (E)  the law and the time step in the value of a nonlinear element; LAW is [] where it is none of ours
function [law, step] = unpack_law (e)
  opt = double (e.opt(:));
  step = [];
  law = [];
  iopt = zeros (9, 1);
  if isfield (e, 'iopt') && ~isempty (e.iopt), iopt(1:numel (e.iopt)) = double (e.iopt(:)); end
  words = {'Power', 'Expon', 'Table', 'DahlC', 'sts', 'Clima2', 'Maxw'};
  codes = cellfun (@qn.impl.keyword, words);
  word = words(codes == fix (opt(1)));
  if isempty (word), return, end
  switch word{1}
    case 'Power'
      law = qn.law ('power', 'stiffness', opt(2), 'exponent', opt(3));
    case 'Expon'
      law = qn.law ('exponential', 'scale', opt(2), 'base', opt(3));
    case 'Table'
      t = table (opt, iopt, 1);
      law = qn.law ('table', 'displacement', t(:, 1), 'force', t(:, 2));
    case 'DahlC'
      law = qn.law ('dahl', 'stiffness', opt(4), 'exponent', opt(5), 'slip', opt(6) * opt(7));
    case 'sts'
      law = qn.law ('stickslip', 'stiffness', opt(4), 'contact', opt(5), 'slip', opt(6), 'ground', opt(7));
    case 'Clima2'
      t = table (opt, iopt, 2);
      law = qn.law ('clima2', 'stiffness', opt(4), 'exponent', opt(5), 'friction', opt(6), 'offset', opt(7), ...
                    'displacement', t(:, 1), 'normal', t(:, 2), 'growth', t(:, 3));
    case 'Maxw'
      q = iopt(3);
      m = iopt(4);
      springs = -opt(5 + (2:m + 1));
      rate = opt(5 + 2 * (q + m) * q + (1:m));
      if q ~= m + 1 || any (springs <= 0) || any (rate <= 0), return, end
      law = qn.law ('maxwell', 'springs', springs, 'dampers', springs ./ rate, 'stiffness', opt(6) - sum (springs));
  end
  if any (strcmp (word{1}, {'DahlC', 'sts', 'Clima2', 'Maxw'})), step = opt(3); end
end

function t = table (opt, iopt, columns)
  n = iopt(8);
  t = reshape (opt(iopt(6) + (1:n * (1 + columns))), n, 1 + columns);
end
