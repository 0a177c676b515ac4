# cmake --install: the module and the toolbox in one folder, lib/quarn, so that one addpath is enough and 'help quarn' finds its text.
set(quarn_folder lib/quarn)
install(TARGETS quarn LIBRARY DESTINATION ${quarn_folder})
if(TARGET quarn_matlab)
  install(TARGETS quarn_matlab LIBRARY DESTINATION ${quarn_folder} RUNTIME DESTINATION ${quarn_folder})
endif()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/toolbox/ DESTINATION ${quarn_folder} PATTERN octave-workspace EXCLUDE)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE ${CMAKE_SOURCE_DIR}/CHANGELOG.md DESTINATION share/doc/quarn)
