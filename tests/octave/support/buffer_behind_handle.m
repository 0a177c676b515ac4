% B = BUFFER_BEHIND_HANDLE (C)  like buffer_holder, but all copies are one object: its address can be set later
classdef buffer_behind_handle < handle
  properties
    c = [];
  end
  methods
    function b = buffer_behind_handle (c)
      b.c = c;
    end
  end
end
