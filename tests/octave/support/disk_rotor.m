% R = DISK_ROTOR (ELEMENTS, ...)  a steel shaft of so many elements with three disks in two bearings that differ along x and y
%
% The bearings are cross-coupled, without symmetry. More names and values go to qn.rotor.
function r = disk_rotor (elements, varargin)
  at = 1 + round ([0.25 0.5 0.8] * elements);
  mass = [8 14 10];
  disks = [at; mass; mass * 0.15 ^ 2 / 4; mass * 0.15 ^ 2 / 2].';
  bearing = {[2e7 4e6; -6e6 3e7], [3e4 2e3; 1e3 4e4]};
  r = qn.rotor ('nodes', linspace (0, 1.2, elements + 1), 'outer', 0.05, 'disks', disks, ...
                'bearings', {1, bearing{:}; elements + 1, bearing{:}}, varargin{:});
end
