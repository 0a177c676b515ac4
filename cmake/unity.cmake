# Compiling the sources a folder of src at a time takes a quarter of the processor time of one by one. Names without linkage must then be
# different within a folder. The module that users get is compiled file by file, so that each file shows that it includes what it needs.
# QUARN_UNITY=never: nothing is, so that one file can be compiled anew (scripts/mutants).
function(quarn_compile_by_folder target)
  if(QUARN_UNITY STREQUAL "never")
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  foreach(file ${sources})
    if(file MATCHES "/src/([^/]+)/")
      set_source_files_properties(${file} PROPERTIES UNITY_GROUP ${CMAKE_MATCH_1})
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

# Test programs: their own code need not be fast, and the headers of the test framework are parsed once a program. Sanitizers watch the
# module. LEFT_OUT names those that the program's own code goes without: 'all' in a program that loads the module and hands it arrays of the
# host, 'undefined' in one with the module's objects in it, whose kernels are given arrays on the stack.
function(quarn_test_program target left_out)
  add_library(${target}_flags INTERFACE)
  target_compile_options(${target}_flags INTERFACE -O0 -Wno-shadow)
  if(QUARN_SANITIZE)
    target_compile_options(${target}_flags INTERFACE -fno-sanitize=${left_out})
  endif()
  # The last flags: they count.
  target_link_libraries(${target} PRIVATE ${target}_flags)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE BATCH UNITY_BUILD_BATCH_SIZE 0)
endfunction()
