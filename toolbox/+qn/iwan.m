% QN.IWAN  bank of Coulomb sliders in parallel (parallel-series model of Iwan, 1966)
%
% Purpose
%   A joint that slips little by little: sliders of equal stiffness whose slip forces are spread evenly. The force-displacement
%   curve of the first loading is a parabola that ends at the joint's slip force; unloading follows Masing's rule.
%
% Calls
%   LAWS = qn.iwan ('slip', F, 'stiffness', K, ...)
%   LAWS = qn.iwan ('slips', FK, 'stiffnesses', KK)
%
% Input
%   Names and values
%     'slip'         slip force of the whole joint [N]
%     'stiffness'    stiffness of the joint while everything sticks [N/m]
%     'sliders'      number of sliders (10)
%     'slips'        slip force of every slider [N], instead of an even spread
%     'stiffnesses'  stiffness of every slider, or one for all [N/m]
%
% Output
%   LAWS  1 x n struct array of laws; qn.simulation gives all of them the same observation
%
% Errors
%   qn:input  parameters are missing, not finite or not above 0, or the numbers of slips and stiffnesses differ
%
% Example
%   joint = qn.iwan ('slip', 100, 'stiffness', 1e6, 'sliders', 5);
%   qn.describe (joint);
%
% See also qn.slider, qn.law, qn.dissipated
function laws = iwan (varargin)
  who = 'qn.iwan';
  o = struct ('slip', [], 'stiffness', [], 'sliders', 10, 'slips', [], 'stiffnesses', []);
  o = qn.impl.options (who, o, varargin);
  if isempty (o.slips)
    if isempty (o.slip) || isempty (o.stiffness), error ('qn:input', '%s: "slip" and "stiffness" are needed, or "slips"', who); end
    o.sliders = qn.impl.count (who, 'sliders', o.sliders);
    o.slip = qn.impl.scalar (who, 'slip', o.slip, realmin ());
    o.stiffness = qn.impl.scalar (who, 'stiffness', o.stiffness, realmin ());
    o.slips = 2 * o.slip / o.sliders ^ 2 * ((1:o.sliders) - 0.5);
    o.stiffnesses = o.stiffness / o.sliders;
  end
  if isempty (o.stiffnesses), error ('qn:input', '%s: "stiffnesses" go with "slips"', who); end
  o.slips = qn.impl.numbers (who, 'slips', o.slips, [], 'list', 'above', 0);
  stiffnesses = numel (o.slips);
  if numel (o.stiffnesses) == 1, stiffnesses = 1; end
  o.stiffnesses = qn.impl.numbers (who, 'stiffnesses', o.stiffnesses, stiffnesses, 'above', 0, 'each', 'one a slider or one for all');
  k = reshape (o.stiffnesses, 1, []) .* ones (1, numel (o.slips));
  for i = numel (o.slips):-1:1
    laws(i) = qn.slider ('slip', o.slips(i), 'stiffness', k(i));
    laws(i).note = sprintf ('slider %d of %d', i, numel (o.slips));
  end
end
