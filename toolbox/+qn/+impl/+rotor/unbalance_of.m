% WHAT = UNBALANCE_OF (SIGNAL)  how the unbalance turns whose load this is, see unbalance_signal; [] for any other signal
function what = unbalance_of (signal)
  what = [];
  if ~isa (signal, 'function_handle') || isempty (strfind (func2str (signal), 'qn.impl.rotor.unbalance_signal')), return, end
  what = signal ('what');
end
