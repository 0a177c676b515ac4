# What users install, tried from the installed copy in processes with a home of their own: the Octave package and cmake --install.
if(QUARN_SANITIZE)
  return()
endif()
add_test(NAME package COMMAND ${CMAKE_CURRENT_LIST_DIR}/package/run ${CMAKE_CURRENT_BINARY_DIR}/package ${OCTAVE_CLI})
if(NOT QUARN_MKL)
  set_tests_properties(package PROPERTIES ENVIRONMENT QUARN_MKL=no)
endif()
# The first of all: later there would hardly be two processors free at one time, and it would be left for the end.
set_tests_properties(package PROPERTIES TIMEOUT 600 PROCESSORS 2 COST 100)
add_test(NAME install
         COMMAND ${CMAKE_CURRENT_LIST_DIR}/install/run ${CMAKE_BINARY_DIR} ${CMAKE_CURRENT_BINARY_DIR}/install ${CMAKE_COMMAND} ${OCTAVE_CLI})
set_tests_properties(install PROPERTIES TIMEOUT 600)
set_property(TEST package install APPEND PROPERTY LABELS once)
