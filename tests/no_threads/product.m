% A product for worker threads in a process that gets none: octave-cli -qf product.m SUPPORT_DIR MODULE_DIR
args = argv ();
addpath (args{:});
setenv ('REFUSE_THREADS', '1');
for k = 1:3
  worker_product ();
  clear ('quarn');
end
fprintf ('the same product on one thread\n');
