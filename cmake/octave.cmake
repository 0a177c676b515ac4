# Octave's headers and libraries, asked of its own mkoctfile.
find_program(MKOCTFILE mkoctfile)
find_program(OCTAVE_CLI octave-cli)
if(NOT MKOCTFILE OR NOT OCTAVE_CLI)
  message(FATAL_ERROR "GNU Octave with its headers (octave, octave-dev) is needed: scripts/setup installs it")
endif()

function(quarn_ask_octave variable out)
  execute_process(COMMAND ${MKOCTFILE} -p ${variable} OUTPUT_VARIABLE answer ERROR_QUIET
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(answer UNIX_COMMAND "${answer}")
  set(${out} ${answer} PARENT_SCOPE)
endfunction()

quarn_ask_octave(INCFLAGS octave_include_flags)
quarn_ask_octave(OCTAVE_LIBS octave_libs)
quarn_ask_octave(OCTLIBDIR octave_lib_dir)
list(TRANSFORM octave_include_flags REPLACE "^-I" "" OUTPUT_VARIABLE octave_include_dirs)

# From Octave 11 on the functions of MEX files are in a library of their own, and a module says with a symbol which version of it it was built
# for: what mkoctfile --mex adds to a file by itself.
execute_process(COMMAND ${MKOCTFILE} -p LIBOCTMEX OUTPUT_VARIABLE octave_mex_library ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
if(octave_mex_library)
  find_library(OCTAVE_MEX_LIBRARY octmex HINTS ${octave_lib_dir} REQUIRED)
  file(REAL_PATH ${OCTAVE_MEX_LIBRARY} octave_mex_file)
  if(NOT octave_mex_file MATCHES "\\.so\\.([0-9]+)")
    message(FATAL_ERROR "${octave_mex_file}: a version number after .so expected")
  endif()
  set(octave_mex_version ${CMAKE_BINARY_DIR}/octave_mex_version.c)
  file(CONFIGURE OUTPUT ${octave_mex_version} CONTENT
    "__attribute__((visibility(\"default\"))) extern const int __octave_mex_soversion__;\nconst int __octave_mex_soversion__ = ${CMAKE_MATCH_1};\n")
  list(APPEND octave_libs ${octave_mex_library})
endif()

# For sources that include mex.h.
add_library(octave_mex INTERFACE)
target_include_directories(octave_mex SYSTEM INTERFACE ${octave_include_dirs})
target_compile_definitions(octave_mex INTERFACE QUARN_HOST_OCTAVE)

# For programs that carry Octave's mx library themselves (unit tests). The module does not link it: the host brings it.
add_library(octave_libraries INTERFACE)
target_link_directories(octave_libraries INTERFACE ${octave_lib_dir})
target_link_libraries(octave_libraries INTERFACE ${octave_libs})
