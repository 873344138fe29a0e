# A folder that looks like a machine with controllers: sample-machine/zenx holds the three utilities (one program under
# their names, on every system with .exe, which is how they are started) and the texts that it answers with.
set(sample_machine ${CMAKE_BINARY_DIR}/sample-machine)
file(MAKE_DIRECTORY ${sample_machine}/zenx)
add_executable(sample_tool samples/sample_tool.cpp)
target_compile_options(sample_tool PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# It is started 80 times in every query and so goes without sanitizers, which take longer to start than it does.
target_link_options(sample_tool PRIVATE $<$<BOOL:${MINGW}>:-static>)
set_target_properties(sample_tool PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/sample-tool)

file(GLOB_RECURSE sample_texts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/samples/machine/*)
set(tools)
file(GLOB tool_names RELATIVE ${CMAKE_SOURCE_DIR}/samples/machine/zenx/answers CONFIGURE_DEPENDS
     ${CMAKE_SOURCE_DIR}/samples/machine/zenx/answers/*)
foreach(tool ${tool_names})
  list(APPEND tools COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:sample_tool>
       ${sample_machine}/zenx/${tool}.exe)
endforeach()
add_custom_command(
  OUTPUT ${sample_machine}/stamp
  ${tools}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${sample_machine}/zenx/answers
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/samples/machine ${sample_machine}
  COMMAND ${CMAKE_COMMAND} -E touch ${sample_machine}/stamp
  DEPENDS sample_tool ${sample_texts}
  VERBATIM)
add_custom_target(sample_machine ALL DEPENDS ${sample_machine}/stamp)
