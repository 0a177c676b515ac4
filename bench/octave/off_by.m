% D = OFF_BY (GOT, WANTED)  largest difference relative to the largest wanted number
function d = off_by (got, wanted)
  d = max (abs (got(:) - wanted(:))) / max (abs (wanted(:)));
end
