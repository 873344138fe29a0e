# Fuzzers: each .cpp file in fuzz/ is a program. They are linked from archives, so that each holds little more than it
# tries and its counters say how far it came there. scripts/fuzz runs them.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  message(FATAL_ERROR "Fuzzers are built with clang: use the preset asan")
endif()
# The counters that fuzzers follow: of what they try alone, so that no time goes into those of the fuzzers' own code. They
# come with a runtime that programs without sanitizers lack: those that only run what is kept, to count the lines that it
# reaches, go without.
if(ZENX_SANITIZE)
  foreach(fuzzed zenx_objects hxahost_objects hxacore plugin_manager platform_answers)
    target_compile_options(${fuzzed} PRIVATE -fsanitize=fuzzer-no-link)
  endforeach()
endif()
add_library(fuzzed_code STATIC $<TARGET_OBJECTS:zenx_objects> $<TARGET_OBJECTS:hxahost_objects>)
target_link_libraries(fuzzed_code PUBLIC host_interface plugin_manager platform_answers)
if(ZENX_COVERAGE)
  target_link_options(fuzzed_code PUBLIC --coverage)
endif()

sources_of(fuzz_support_sources fuzz/support)
add_library(fuzz_support STATIC ${fuzz_support_sources})
target_link_libraries(fuzz_support PUBLIC fuzzed_code)

sources_of(fuzzer_sources fuzz)
set(fuzzers)
foreach(source ${fuzzer_sources})
  get_filename_component(name ${source} NAME_WE)
  add_executable(fuzz_${name} ${source})
  target_link_libraries(fuzz_${name} PRIVATE fuzz_support)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
  list(APPEND fuzzers fuzz_${name})
endforeach()

# Seeds and dictionaries: from the texts of the sample machine and from the labels in the sources.
sources_of(fuzz_material_sources fuzz/material)
add_executable(fuzz_material ${fuzz_material_sources})
target_link_libraries(fuzz_material PRIVATE fuzz_support)
file(GLOB_RECURSE fuzz_material_texts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/samples/machine/*
     ${CMAKE_SOURCE_DIR}/docs/bundles.md ${CMAKE_SOURCE_DIR}/tests/golden/* ${CMAKE_SOURCE_DIR}/tools/*
     ${CMAKE_SOURCE_DIR}/collect/*
     ${CMAKE_SOURCE_DIR}/logs/* ${CMAKE_SOURCE_DIR}/publish/*.cpp ${CMAKE_SOURCE_DIR}/host/hxahost/*/*.cpp)
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/material/stamp
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/material
  COMMAND fuzz_material ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/material
  COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/material/stamp
  DEPENDS fuzz_material ${fuzz_material_texts}
  VERBATIM)
add_custom_target(fuzzers ALL DEPENDS ${fuzzers} ${CMAKE_BINARY_DIR}/material/stamp)
