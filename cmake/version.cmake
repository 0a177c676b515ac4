# The version of quarn is written once, in the toolbox: a clone of it runs without a build.
set(QUARN_VERSION_FILE ${CMAKE_CURRENT_LIST_DIR}/../toolbox/+qn/+impl/release.m)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${QUARN_VERSION_FILE})
file(STRINGS ${QUARN_VERSION_FILE} QUARN_VERSION REGEX "number = '[0-9]+\\.[0-9]+\\.[0-9]+';")
string(REGEX REPLACE ".*'(.*)'.*" "\\1" QUARN_VERSION "${QUARN_VERSION}")

# Tells it to the one source that answers with it; called where the sources become a target, as properties of a source hold there only.
function(quarn_tell_version)
  set_source_files_properties(${CMAKE_SOURCE_DIR}/src/gateway/version_command.cpp PROPERTIES
    COMPILE_DEFINITIONS QUARN_VERSION=${QUARN_VERSION})
endfunction()
