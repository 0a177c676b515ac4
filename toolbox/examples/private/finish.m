% R = FINISH (NAME, FIG, FOLDER, CHECKS, NUMBERS)  what every example ends with
%
% Input   CHECKS   rows {text, got, wanted, tolerance}; the error of a row is the greatest difference, relative to the greatest
%                  wanted value where that is not 0
%         FOLDER   where the picture NAME.png goes; '' leaves the figure open
%         NUMBERS  struct of what else the example found
% Output  R        struct: name, checks (struct array: text, got, wanted, error, tolerance, ok), ok, numbers, picture
function r = finish (name, fig, folder, checks, numbers)
  c = struct ('text', checks(:, 1), 'got', checks(:, 2), 'wanted', checks(:, 3), 'error', 0, 'tolerance', checks(:, 4), 'ok', false);
  for k = 1:numel (c)
    size_of = max (abs (c(k).wanted(:)));
    if size_of == 0, size_of = 1; end
    c(k).error = max (abs (c(k).got(:) - c(k).wanted(:))) / size_of;
    % A NaN fails: the comparison is false for it.
    c(k).ok = numel (c(k).got) == numel (c(k).wanted) && ~isempty (c(k).got) && c(k).error <= c(k).tolerance;
  end
  r = struct ('name', name, 'checks', c, 'ok', all ([c.ok]), 'numbers', numbers, 'picture', '');
  if ~isempty (folder)
    r.picture = fullfile (folder, [name '.png']);
    qn.plot.picture (fig, r.picture);
    close (fig);
  end
end
