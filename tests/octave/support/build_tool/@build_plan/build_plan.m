% PLAN = BUILD_PLAN (FUNCTIONS)  a plan whose fields Tasks, DefaultTasks and Dependencies can be looked at
function plan = build_plan (functions)
  plan = class (struct ('Tasks', {functions}, 'DefaultTasks', {{}}, 'Dependencies', struct ()), 'build_plan');
end
