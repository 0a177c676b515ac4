# The documents: their examples run, and they agree with the sources and with each other.
set(octave_document ${OCTAVE_CLI} --no-history -qf ${CMAKE_CURRENT_LIST_DIR}/octave/run_documents.m)
file(GLOB_RECURSE documents CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} 
     ${CMAKE_SOURCE_DIR}/README.md ${CMAKE_SOURCE_DIR}/CONTRIBUTING.md ${CMAKE_SOURCE_DIR}/docs/*.md)
foreach(file ${documents})
  string(REGEX REPLACE "^docs/|\\.md$" "" name ${file})
  string(REPLACE "/" "." name ${name})
  add_test(NAME document.${name} COMMAND ${octave_document} ${CMAKE_SOURCE_DIR}/${file} $<TARGET_FILE_DIR:quarn>)
  set_tests_properties(document.${name} PROPERTIES TIMEOUT 600 ENVIRONMENT "${host_environment}" LABELS once)
endforeach()
set_tests_properties(document.tutorial document.rotors document.theory PROPERTIES COST 20)
# What the README says its example prints is what it prints.
set_tests_properties(document.README PROPERTIES
  PASS_REGULAR_EXPRESSION "The mass moves from -10.00 mm to 3.32 mm\n.*The mass moves from -10.00 mm to 3.32 mm\n.*2 examples, 0 failed")
add_test(NAME documents.failing_examples_are_reported
         COMMAND ${octave_document} ${CMAKE_CURRENT_LIST_DIR}/documents/failing_examples.md $<TARGET_FILE_DIR:quarn>)
set_tests_properties(documents.failing_examples_are_reported PROPERTIES
  PASS_REGULAR_EXPRESSION "ok      example at line 5\n.*FAILED  example at line 10\n.*FAILED  example at line 14\n.*3 examples, 2 failed"
  ENVIRONMENT "${host_environment}")
add_test(NAME documents.failing_examples_fail
         COMMAND ${octave_document} ${CMAKE_CURRENT_LIST_DIR}/documents/failing_examples.md $<TARGET_FILE_DIR:quarn>)
set_tests_properties(documents.failing_examples_fail PROPERTIES WILL_FAIL ON ENVIRONMENT "${host_environment}")
add_test(NAME documents.no_examples_are_reported
         COMMAND ${octave_document} ${CMAKE_CURRENT_LIST_DIR}/documents/no_examples.md $<TARGET_FILE_DIR:quarn>)
set_tests_properties(documents.no_examples_are_reported PROPERTIES
  PASS_REGULAR_EXPRESSION "no examples in this document" ENVIRONMENT "${host_environment}")
add_test(NAME documents.complete COMMAND ${OCTAVE_CLI} --no-history -qf ${CMAKE_CURRENT_LIST_DIR}/octave/check_documents.m)
set_property(TEST documents.failing_examples_are_reported documents.failing_examples_fail documents.no_examples_are_reported
             documents.complete APPEND PROPERTY LABELS once)
