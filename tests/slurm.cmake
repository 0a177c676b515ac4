# A sweep as a job array, on a cluster that the test starts and stops itself. Skipped where Slurm is not installed.
if(QUARN_SANITIZE)
  return()
endif()
add_test(NAME slurm COMMAND ${CMAKE_CURRENT_LIST_DIR}/slurm/run_on_one_machine ${OCTAVE_CLI} $<TARGET_FILE_DIR:quarn>)
set_tests_properties(slurm PROPERTIES TIMEOUT 300 SKIP_RETURN_CODE 77 LABELS once COST 45)
