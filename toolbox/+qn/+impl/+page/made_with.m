% HTML = MADE_WITH ()  versions of toolbox, module and host
function html = made_with ()
  v = qn.version ();
  html = sprintf ('<h2>Computed with</h2>\n%s', qn.impl.page.facts ({'Toolbox', ['quarn ' v.toolbox]; 'Module', ['quarn ' v.module]; ...
                  'Compiler', v.compiler; 'BLAS', v.cblas; 'Host', v.host}));
end
