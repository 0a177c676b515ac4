% RUN_BLOCK (CODE)  runs an example in a workspace that holds nothing but its own text
function run_block (example_text_)
  eval (example_text_);
end
