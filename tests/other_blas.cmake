# The module and the unit tests again, as they are without MKL: the files that look at what BLAS there is are compiled anew, the other objects
# are those of the build. What calls the BLAS is tested on it. (A build with the preset portable has all tests without MKL.)
find_library(OTHER_CBLAS_LIBRARY NAMES libopenblas.a PATH_SUFFIXES openblas-serial)
find_path(OTHER_CBLAS_INCLUDE_DIR cblas.h PATH_SUFFIXES openblas-serial openblas)
get_target_property(blas_definitions quarn_blas INTERFACE_COMPILE_DEFINITIONS)
if(NOT "QUARN_WITH_MKL" IN_LIST blas_definitions OR NOT OTHER_CBLAS_LIBRARY OR NOT OTHER_CBLAS_INCLUDE_DIR OR QUARN_SANITIZE)
  return()
endif()

set(depends_on_blas blas_name.cpp spblas.cpp)
list(TRANSFORM depends_on_blas PREPEND ${CMAKE_SOURCE_DIR}/src/sparse/ OUTPUT_VARIABLE sources_with_blas)
add_library(quarn_other_blas_objects OBJECT ${sources_with_blas})
target_include_directories(quarn_other_blas_objects PRIVATE ${CMAKE_SOURCE_DIR}/src)
target_include_directories(quarn_other_blas_objects SYSTEM PRIVATE ${OTHER_CBLAS_INCLUDE_DIR})
target_link_libraries(quarn_other_blas_objects PRIVATE quarn_flags octave_mex TBB::tbb)
string(REPLACE ".cpp" "" names "${depends_on_blas}")
string(REPLACE ";" "|" names "${names}")
set(other_blas_objects $<TARGET_OBJECTS:quarn_other_blas_objects>
                       $<FILTER:$<TARGET_OBJECTS:quarn_objects>,EXCLUDE,/\(${names}\)\\.cpp>)

add_library(quarn_other_blas MODULE ${other_blas_objects} ${octave_mex_version})
target_link_libraries(quarn_other_blas PRIVATE quarn_flags TBB::tbb ${OTHER_CBLAS_LIBRARY} m)
target_link_options(quarn_other_blas PRIVATE
  -Wl,--exclude-libs,ALL -Wl,--gc-sections -Wl,-Bsymbolic -Wl,--version-script=${CMAKE_SOURCE_DIR}/cmake/module.map)
set_target_properties(quarn_other_blas PROPERTIES
  PREFIX "" OUTPUT_NAME quarn SUFFIX ".mex" LINKER_LANGUAGE CXX LIBRARY_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/other_blas)

add_executable(quarn_unit_other_blas $<TARGET_OBJECTS:quarn_unit> ${other_blas_objects})
target_link_libraries(quarn_unit_other_blas PRIVATE quarn_flags octave_libraries TBB::tbb GTest::gtest ${OTHER_CBLAS_LIBRARY} m)
set_target_properties(quarn_unit_other_blas PROPERTIES LINKER_LANGUAGE CXX)
add_test(NAME other_blas.unit COMMAND quarn_unit_other_blas)

foreach(file ${suites})
  get_filename_component(suite ${file} NAME_WE)
  if(file MATCHES "/suites/sparse/|/suite_(sparse_handles|full_rows|residual_forms|rotcenter)\\.m$" AND NOT suite MATCHES "random|refusals")
    string(REGEX REPLACE "^suite_" "other_blas." name ${suite})
    add_test(NAME ${name} COMMAND ${octave_run} ${suite} $<TARGET_FILE_DIR:quarn_other_blas>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 SKIP_REGULAR_EXPRESSION "^0 passed, 0 failed, [1-9]|\n0 passed, 0 failed, [1-9]")
  endif()
endforeach()
