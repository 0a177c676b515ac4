% PLAN = BUILDPLAN (FUNCTIONS)  stands for MATLAB's function of this name: keeps the tasks, runs none
function plan = buildplan (functions)
  plan = struct ('Tasks', {functions});
end
