# The module in real Octave, one test a suite. The sanitizer's library must be the first in the host's process; the host's own leaks are
# not ours to report.
set(host_environment "")
if(QUARN_SANITIZE)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libasan.so
                  OUTPUT_VARIABLE sanitizer_library OUTPUT_STRIP_TRAILING_WHITESPACE)
  set(host_environment
    LD_PRELOAD=${sanitizer_library} ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=1:thread_local_quarantine_size_kb=64:malloc_context_size=1 UBSAN_OPTIONS=print_stacktrace=1 QUARN_SANITIZED=1)
endif()
# Beside the module, where the runner looks for it.
add_library(address_of MODULE ${CMAKE_CURRENT_LIST_DIR}/octave/address_of.c ${octave_mex_version})
target_link_libraries(address_of PRIVATE octave_mex)
set_target_properties(address_of PROPERTIES PREFIX "" SUFFIX ".mex" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests/octave)
set(octave_run ${OCTAVE_CLI} --no-history -qf ${CMAKE_CURRENT_LIST_DIR}/octave/run_suite.m)
file(GLOB suites CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/octave/suites/*/suite_*.m)
foreach(file ${suites})
  get_filename_component(suite ${file} NAME_WE)
  string(REGEX REPLACE "^suite_" "octave." name ${suite})
  # octave.validation runs all tests of these.
  if(file MATCHES "/suites/toolbox/suite_published_")
    continue()
  endif()
  add_test(NAME ${name} COMMAND ${octave_run} ${suite} $<TARGET_FILE_DIR:quarn>)
  set_tests_properties(${name} PROPERTIES TIMEOUT 1200 ENVIRONMENT "${host_environment}"
                       SKIP_REGULAR_EXPRESSION "^0 passed, 0 failed, [1-9]|\n0 passed, 0 failed, [1-9]")
  # The toolbox is Octave code: it does not change with the way the module is built.
  if(file MATCHES "/suites/toolbox/" OR name MATCHES "^octave\\.(install|document|validation|recipes|includes|test_)")
    set_tests_properties(${name} PROPERTIES LABELS once)
  # What runs the code of other suites again, more often or in more processes: sanitizers see no more of it there.
  elseif(name MATCHES "_random$|^octave\\.(newmark_model|published_|memory|leaving|demo_after_errors)")
    set_tests_properties(${name} PROPERTIES LABELS repeats)
  endif()
endforeach()
# The tests of errors of some forty suites and two demos in one test; with QUARN_FULL=1 all of these suites.
set_tests_properties(octave.demo_after_errors PROPERTIES TIMEOUT 1500)
# The longest begin first, so that none is left alone at the end.
set_tests_properties(octave.toolbox_examples PROPERTIES COST 50)
set_tests_properties(octave.validation octave.demo_after_errors octave.toolbox_sweep octave.toolbox_sweep_files octave.toolbox_help
                     octave.toolbox_announced octave.toolbox_check_codes octave.toolbox_report_host octave.toolbox_run_up octave.toolbox_runs
                     PROPERTIES COST 30)
set_tests_properties(octave.toolbox_arguments octave.toolbox_interrupted octave.toolbox_advice octave.toolbox_user_laws octave.toolbox_campbell
                     octave.toolbox_saves octave.toolbox_laws octave.toolbox_physics octave.toolbox_report octave.toolbox_files_mangled
                     octave.memory octave.recipes octave.leaving octave.laws_random PROPERTIES COST 20)
set_tests_properties(octave.hostile_arguments octave.nl_hostile octave.law_user octave.gateway octave.newmark_factor octave.newmark_guards
                     octave.newmark_model octave.full_rows octave.registry PROPERTIES COST 10)
# The long mixed run of scripts/soak, for some seconds.
add_test(NAME octave.soak COMMAND ${OCTAVE_CLI} --no-history -qf ${CMAKE_CURRENT_LIST_DIR}/soak/soak.m $<TARGET_FILE_DIR:quarn> 4)
set_tests_properties(octave.soak PROPERTIES LABELS repeats TIMEOUT 600 ENVIRONMENT "${host_environment}")
add_test(NAME toolbox.parses
         COMMAND ${OCTAVE_CLI} --traditional --no-history -qf ${CMAKE_CURRENT_LIST_DIR}/octave/parse_toolbox.m ${CMAKE_SOURCE_DIR}/toolbox)
set_tests_properties(toolbox.parses PROPERTIES LABELS once ENVIRONMENT "${host_environment}")
