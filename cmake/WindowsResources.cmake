# What Windows shows of a file (its properties, the question for rights) and how it runs the program.
if(WIN32)
  enable_language(RC)
endif()

# The version resource of a binary, and the manifest of a program.
function(add_windows_resources TARGET DESCRIPTION)
  if(NOT WIN32)
    return()
  endif()
  string(REPLACE . , version_numbers ${PROJECT_VERSION}.0)
  set(type $<IF:$<STREQUAL:$<TARGET_PROPERTY:${TARGET},TYPE>,EXECUTABLE>,VFT_APP,VFT_DLL>)
  set(manifest $<IF:$<STREQUAL:$<TARGET_PROPERTY:${TARGET},TYPE>,EXECUTABLE>,1,0>)
  set(description ${DESCRIPTION})
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows.rc.in ${CMAKE_BINARY_DIR}/resources/${TARGET}.rc.in @ONLY)
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/resources/${TARGET}.rc INPUT ${CMAKE_BINARY_DIR}/resources/${TARGET}.rc.in)
  # A library of its own: the resource compiler takes no options of the C++ compiler.
  add_library(${TARGET}_resources OBJECT ${CMAKE_BINARY_DIR}/resources/${TARGET}.rc)
  target_include_directories(${TARGET}_resources PRIVATE ${CMAKE_SOURCE_DIR}/packaging)
  set_source_files_properties(${CMAKE_BINARY_DIR}/resources/${TARGET}.rc PROPERTIES
                              OBJECT_DEPENDS ${CMAKE_SOURCE_DIR}/packaging/hxahost.manifest)
  target_sources(${TARGET} PRIVATE $<TARGET_OBJECTS:${TARGET}_resources>)
endfunction()
