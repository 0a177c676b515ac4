% GOOD = CHECK (NAME, VALUE, LIMIT, REASON)  says whether VALUE stays within LIMIT, and where the limit comes from
function good = check (name, value, limit, reason)
  good = value <= limit;
  verdict = 'FAILED';
  if good, verdict = 'ok'; end
  fprintf ('  %-6s  %s: %.2e (at most %.2e)\n            limit: %s\n', verdict, name, value, limit, reason);
end
