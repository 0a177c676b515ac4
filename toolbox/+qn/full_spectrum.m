% QN.FULL_SPECTRUM  forward and backward parts of an orbit
%
% Purpose
%   An orbit is a sum of circles: at each frequency one that turns forward, from X to Y, and one that turns backward. A circle has one
%   part, a straight line two equal ones, an ellipse with half axes a and b along X and Y (a + b) / 2 and (a - b) / 2.
%
% Calls
%   [HERTZ, FORWARD, BACKWARD] = qn.full_spectrum (TIME, X, Y, ...)
%   [HERTZ, FORWARD, BACKWARD] = qn.full_spectrum (RES, CX, CY, ...)
%
% Input
%   TIME     1 x k times, evenly spaced [s]
%   X, Y     1 x k displacements across and up
%   RES      from qn.run, and
%   CX, CY   observation rows, or numbers of degrees of freedom, across and up
%   Names and values
%     'window'  'hann' or 'none' ('hann')
%     'mean'    'keep' or 'remove' ('remove')
%
% Output
%   HERTZ               1 x n frequencies, from 0 to half the sampling rate [Hz]
%   FORWARD, BACKWARD   1 x n complex amplitudes [unit of the signals]: the circles are FORWARD * exp (i w t) and BACKWARD * exp (-i w t) of
%                       X + i Y. What is at 0 and at half the sampling rate turns neither way and is FORWARD.
%
% Errors
%   qn:input  the lengths differ, a value is not finite, the times are not evenly spaced, or a name is unknown
%
% Example
%   t = (0:999) * 1e-3;
%   [f, forward, backward] = qn.full_spectrum (t, 3 * cos (2 * pi * 50 * t), sin (2 * pi * 50 * t));
%   plot ([-fliplr(f), f], abs ([fliplr(backward), forward]));
%
% See also qn.spectrum, qn.plot.full_spectrum, qn.plot.orbit
function [hertz, forward, backward] = full_spectrum (time, x, y, varargin)
  who = 'qn.full_spectrum';
  if nargin < 3, error ('qn:input', '%s: times and two displacements, or a result and two rows expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('window', 'hann', 'mean', 'remove'), varargin);
  [time, x, y] = qn.impl.across_and_up (who, time, x, y);
  h = qn.impl.spacing (who, time);
  n = numel (time);
  switch o.window
    case 'hann', w = 0.5 - 0.5 * cos (2 * pi * (0:n - 1) / n);
    case 'none', w = ones (1, n);
    otherwise, error ('qn:input', '%s: the window is ''hann'' or ''none'', not ''%s''', who, o.window);
  end
  z = x + 1i * y;
  switch o.mean
    case 'remove', z = z - mean (z);
    case 'keep'
    otherwise, error ('qn:input', '%s: the mean is ''keep'' or ''remove'', not ''%s''', who, o.mean);
  end
  z = fft (z .* w) / sum (w);
  half = floor (n / 2) + 1;
  forward = z(1:half);
  backward = z([1, n:-1:n - half + 2]);
  backward(1) = 0;
  if mod (n, 2) == 0, backward(half) = 0; end
  hertz = (0:half - 1) / (n * h);
end
