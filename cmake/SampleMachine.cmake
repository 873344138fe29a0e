# Folders that look like machines with controllers: zenx holds the three utilities (one program under their names, on
# every system with .exe, which is how they are started) and the texts that it answers with.
# - sample-machine: what every command is shown with;
# - sample-machine-with-gap: the same, but the legacy controllers have the numbers 1 and 3, so that the next utility
#   gives its controller a number that is in use.
add_executable(sample_tool samples/sample_tool.cpp)
target_compile_options(sample_tool PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# It is started 80 times in every query and so goes without sanitizers, which take longer to start than it does.
target_link_options(sample_tool PRIVATE $<$<BOOL:${MINGW}>:-static>)
set_target_properties(sample_tool PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/sample-tool)

file(GLOB_RECURSE sample_texts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/samples/machine/*)
file(GLOB tool_names RELATIVE ${CMAKE_SOURCE_DIR}/samples/machine/zenx/answers CONFIGURE_DEPENDS
     ${CMAKE_SOURCE_DIR}/samples/machine/zenx/answers/*)

# Further arguments: a command that changes the copy.
function(add_machine folder)
  set(machine ${CMAKE_BINARY_DIR}/${folder})
  set(tools)
  foreach(tool ${tool_names})
    list(APPEND tools COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:sample_tool>
         ${machine}/zenx/${tool}.exe)
  endforeach()
  file(MAKE_DIRECTORY ${machine}/zenx)
  add_custom_command(
    OUTPUT ${machine}/stamp
    ${tools}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${machine}/zenx/answers
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/samples/machine ${machine}
    ${ARGN}
    COMMAND ${CMAKE_COMMAND} -E touch ${machine}/stamp
    DEPENDS sample_tool ${sample_texts} ${CMAKE_SOURCE_DIR}/cmake/gap_machine.cmake
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY machine_stamps ${machine}/stamp)
endfunction()

add_machine(sample-machine)
add_machine(sample-machine-with-gap COMMAND ${CMAKE_COMMAND} -Dfolder=${CMAKE_BINARY_DIR}/sample-machine-with-gap
            -P ${CMAKE_SOURCE_DIR}/cmake/gap_machine.cmake)
get_property(machine_stamps GLOBAL PROPERTY machine_stamps)
add_custom_target(sample_machine ALL DEPENDS ${machine_stamps})
