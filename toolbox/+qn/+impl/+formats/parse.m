% [X, GOOD, POINT, EXPONENT, BLANK] = PARSE (C)  numbers as Fortran writes them, one in each row of the characters C
%
% A number is a sign, digits with or without a point, and an exponent: after E, D or Q in either case, or after nothing but its sign
% ("1.5-3"). Blanks around it are free, within it they are not. GOOD is false where a row is no finite number; X is 0 there and where
% all is blank. POINT and EXPONENT say what was written.
function [x, good, point, exponent, blank] = parse (c)
  [n, width] = size (c);
  % Characters: 1 blank, 2 sign, 3 digit, 4 point, 5 letter of an exponent, 6 any other.
  kind = 6 * ones (1, 256);
  kind(double (' ') + 1) = 1;
  kind(double ('+-') + 1) = 2;
  kind(double ('0123456789') + 1) = 3;
  kind(double ('.') + 1) = 4;
  kind(double ('EeDdQq') + 1) = 5;
  % States: 1 nothing yet, 2 sign, 3 digits, 4 point alone, 5 point and digits, 6 letter, 7 sign of the exponent, 8 its digits, 9 blanks
  % after it, 10 no number. A row is a state, a column a character.
  next = [1 2 3 4 10 10; 10 10 3 4 10 10; 9 7 3 5 6 10; 10 10 5 10 10 10; 9 7 5 10 6 10; 10 7 8 10 10 10; 10 10 8 10 10 10; ...
          9 10 8 10 10 10; 9 10 10 10 10 10; 10 10 10 10 10 10];
  state = ones (n, 1);
  point = false (n, 1);
  exponent = false (n, 1);
  out = repmat (char (0), n, 2 * width + 2);
  for j = 1:width
    before = state;
    what = reshape (kind(double (c(:, j)) + 1), [], 1);
    state = next(before + 10 * (what - 1));
    point = point | what == 4;
    exponent = exponent | (state == 8);
    bare = state == 7 & before ~= 6;
    out(bare, 2 * j - 1) = 'e';
    kept = what ~= 1;
    out(kept, 2 * j) = c(kept, j);
    out(what == 5, 2 * j) = 'e';
  end
  blank = state == 1;
  good = blank | state == 3 | state == 5 | state == 8 | state == 9;
  zero = blank | ~good;
  out(zero, :) = char (0);
  out(zero, 1) = '0';
  out(:, end) = char (10);
  out = out.';
  x = sscanf (out(out ~= 0).', '%f');
  if numel (x) ~= n, x = one_by_one (out, n); end
  good = good & isfinite (x);
  x(~good) = 0;
end

% Some hosts stop reading at a number that no double holds.
function x = one_by_one (out, n)
  x = zeros (n, 1);
  for k = 1:n
    text = out(:, k).';
    x(k) = str2double (text(text > ' '));
  end
end
