% X = READ_NUMBERS (ID, COUNT, FORM, CLASS_NAME)  COUNT numbers in a row from an open file, FORM as fread takes it; many of them in parts
%
% The host holds what it reads in one go twice.
function x = read_numbers (id, count, form, class_name)
  part = 2e5;
  if count <= part
    x = fread (id, [1, count], form);
    return
  end
  x = zeros (1, count, class_name);
  for k = 1:part:count
    last = min (k + part - 1, count);
    x(k:last) = fread (id, [1, last - k + 1], form);
  end
end
