% BYTES = OP4_BYTES (A, TYPE, ORDER, WORD, FORM)  a matrix as a binary OUTPUT4 file, for tests; NAME is KAA
%
% TYPE 1 to 4 as in the file, ORDER 'little' or 'big', WORD 4 or 8 bytes a whole number, FORM 'dense', 'sparse' or 'bigmat'
function bytes = op4_bytes (a, type, order, word, form)
  f = struct ('swap', strcmp (order, 'big'), 'word', word);
  a = full (a);
  [rows, columns] = size (a);
  name = uint8 ('KAA     ');
  if word == 8, name = uint8 ('KAA             '); end
  sign_of = 1 - 2 * strcmp (form, 'bigmat');
  bytes = record (f, [whole(f, [columns, sign_of * rows, 1 + (rows ~= columns), type]), name]);
  real_class = {'single', 'double'};
  real_class = real_class{word * (1 + (mod (type, 2) == 0)) / 4};
  for j = 1:columns
    used = find (a(:, j)).';
    if isempty (used), continue, end
    data = zeros (1, 0, 'uint8');
    row = 0;
    if strcmp (form, 'dense')
      row = used(1);
      data = values (f, a(used(1):used(end), j).', type, real_class);
    else
      % Runs of rows that follow each other.
      for run = [used(diff ([-1, used]) > 1); used(diff ([used, Inf]) > 1)]
        v = values (f, a(run(1):run(2), j).', type, real_class);
        long = numel (v) / word;
        if strcmp (form, 'bigmat')
          data = [data, whole(f, [long + 1, run(1)]), v];
        else
          data = [data, whole(f, 65536 * (long + 1) + run(1)), v];
        end
      end
    end
    bytes = [bytes, record(f, [whole(f, [j, row, numel(data) / word]), data])];
  end
  bytes = char ([bytes, record(f, [whole(f, [columns + 1, 1, 1]), values(f, 1, 2 - mod (type, 2), real_class)])]);
end

function b = of (f, x)
  if f.swap, x = swapbytes (x); end
  b = typecast (x, 'uint8');
end

function b = whole (f, x)
  if f.word == 8, b = of (f, int64 (x)); else, b = of (f, int32 (x)); end
end

function b = values (f, x, type, name)
  if type > 2, x = reshape ([real(x); imag(x)], 1, []); end
  b = of (f, cast (x, name));
end

function b = record (f, payload)
  mark = of (f, int32 (numel (payload)));
  b = [mark, payload, mark];
end
