# The module for MATLAB, where MATLAB is found. MATLAB's version file goes into the module with a symbol that must be seen from outside; its
# headers are not ours to warn of.
find_package(Matlab QUIET COMPONENTS MX_LIBRARY)
if(Matlab_FOUND)
  message(STATUS "quarn: MATLAB found at ${Matlab_ROOT_DIR}, building quarn.${Matlab_MEX_EXTENSION}")
  file(GLOB_RECURSE quarn_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*.cpp)
  quarn_tell_version()
  matlab_add_mex(NAME quarn_matlab SRC ${quarn_sources} OUTPUT_NAME quarn LINK_TO quarn_flags quarn_blas TBB::tbb R2017b)
  target_include_directories(quarn_matlab PRIVATE ${CMAKE_SOURCE_DIR}/src)
  target_include_directories(quarn_matlab SYSTEM PRIVATE ${Matlab_INCLUDE_DIRS})
  set_target_properties(quarn_matlab PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/module
    C_VISIBILITY_PRESET default)
  target_link_options(quarn_matlab PRIVATE
    -Wl,--exclude-libs,ALL -Wl,--gc-sections -Wl,-Bsymbolic -Wl,--version-script=${CMAKE_SOURCE_DIR}/cmake/module.map)
elseif(NOT QUARN_OCTAVE)
  message(FATAL_ERROR "QUARN_OCTAVE is off and no MATLAB was found (Matlab_ROOT_DIR names its folder): nothing to build")
endif()
