% B = BUFFER_HOLDER (C)  object whose property "c" holds C, where the module expects the address of a buffer
classdef buffer_holder
  properties
    c = [];
  end
  methods
    function b = buffer_holder (c)
      b.c = c;
    end
  end
end
