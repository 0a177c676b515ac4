% [X, SURE] = SETTLED_MOTION (CASES, FINEST)  fine_motion of each case with steps of which a half changes less than 1 %, n x N x steps+1
%
% The steps are halved until that is so, to FINEST parts of a step of the case at most. SURE is false where it is not so then: chaotic
% motion and impacts that no step settles are no reference.
function [x, sure] = settled_motion (cases, finest)
  sure = false (1, numel (cases));
  parts = 2;
  x = fine_motion (cases, parts);
  while parts < finest && ~all (sure)
    parts = 2 * parts;
    left = find (~sure);
    fine = fine_motion (cases(left), parts);
    apart = max (max (abs (x(:, left, :) - fine), [], 3), [], 1) ./ max (max (abs (fine), [], 3), [], 1);
    x(:, left, :) = fine;
    sure(left) = apart < 0.01;
  end
end
