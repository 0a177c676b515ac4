% [NAMES, WIDTHS] = FLAT_CLASSES ()  classes of arrays in the order of their codes in flatten, and bytes of an element
function [names, widths] = flat_classes ()
  names = {'double', 'single', 'int8', 'uint8', 'int16', 'uint16', 'int32', 'uint32', 'int64', 'uint64', 'char', 'logical'};
  widths = [8 4 1 1 2 2 4 4 8 8 2 1];
end
