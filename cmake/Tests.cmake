# One program for each level of tests: unit (a parser on text), host (the plug-in in a host with scripted services) and
# end_to_end (the program on the sample machine, with real processes). What differs between systems is in a folder
# windows/ or posix/, as it does in the binaries.
enable_testing()
if(CMAKE_CROSSCOMPILING)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  add_library(test_framework INTERFACE)
  target_link_libraries(test_framework INTERFACE gmock gtest)
else()
  find_package(GTest REQUIRED)
  add_library(test_framework INTERFACE)
  target_link_libraries(test_framework INTERFACE GTest::gmock GTest::gtest)
endif()

# A program that does what a test asks of a child process. On every system with .exe, as the utilities. It is run a
# thousand times in a row, so it goes without sanitizers and libraries, which take longer to start than it does.
sources_of(test_child_sources tests/programs)
add_executable(test_child ${test_child_sources})
target_include_directories(test_child PRIVATE ${CMAKE_SOURCE_DIR})
target_compile_options(test_child PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_link_options(test_child PRIVATE -static)
set_target_properties(test_child PROPERTIES SUFFIX .exe)

# What tests put where it must not be loaded from.
add_library(planted_library MODULE tests/programs/planted/planted_library.cpp)
target_compile_options(planted_library PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_link_options(planted_library PRIVATE -static-libgcc -static-libstdc++)
set_target_properties(planted_library PROPERTIES PREFIX "" OUTPUT_NAME planted SUFFIX .library)

# The code of the tests is compiled without optimisation, in half the time; the product as its preset says.
set(test_options -O0)

# What all three levels use, compiled once.
sources_of(test_support_sources tests/support)
add_library(test_support OBJECT ${test_support_sources} tests/main.cpp)
target_link_libraries(test_support PUBLIC zenx_objects hxahost_objects test_framework)
target_compile_options(test_support PRIVATE ${test_options})
set_source_files_properties(tests/support/source_folder.cpp PROPERTIES
                            COMPILE_DEFINITIONS ZENX_SOURCE_FOLDER="${CMAKE_SOURCE_DIR}")

find_program(ZENX_LLD ld.lld-14)
foreach(level unit host end_to_end)
  sources_of(sources tests/${level})
  add_executable(${level}_tests ${sources})
  target_link_libraries(${level}_tests PRIVATE test_support zenx_objects hxahost_objects)
  target_compile_options(${level}_tests PRIVATE ${test_options})
  if(MINGW AND ZENX_LLD)
    target_link_options(${level}_tests PRIVATE -fno-use-linker-plugin -wrapper ${CMAKE_SOURCE_DIR}/cmake/link_with_lld)
  endif()
  add_dependencies(${level}_tests hxahost zenx sample_machine test_child planted_library)
  add_test(NAME ${level} COMMAND ${level}_tests --gtest_brief=1 --gtest_output=xml:results-${level}.xml)
  set_tests_properties(${level} PROPERTIES TIMEOUT 1800)
endforeach()

# The preset asan runs two of all tests at a time. Programs that collect from one folder wait for each other, and say so.
set_tests_properties(end_to_end PROPERTIES RESOURCE_LOCK sample_machine)

# Every build checks what the product includes; this is a test of the check.
add_test(NAME includes COMMAND ${CMAKE_SOURCE_DIR}/tests/includes/includes_test)

# What binaries import: those for Linux scripts/test looks at in the release build, as what counts lines imports more.
if(CMAKE_CROSSCOMPILING)
  add_test(NAME binaries COMMAND ${CMAKE_SOURCE_DIR}/tests/binaries/binaries_test ${system} ${CMAKE_BINARY_DIR}/bin)
  set_tests_properties(binaries PROPERTIES TIMEOUT 120)
endif()

# Debian's Prometheus and its node exporter take what the native program writes; the other system writes the same.
if(NOT CMAKE_CROSSCOMPILING)
  add_test(NAME monitoring COMMAND ${CMAKE_SOURCE_DIR}/tests/monitoring/prometheus_test $<TARGET_FILE:hxahost>
                                   ${CMAKE_BINARY_DIR}/sample-machine ${CMAKE_BINARY_DIR}/results-monitoring.xml)
  set_tests_properties(monitoring PROPERTIES TIMEOUT 900 RESOURCE_LOCK sample_machine)
endif()

# Readers of CIM-XML and MOF that know nothing of the program take what the native one writes; the other system writes the
# same.
if(NOT CMAKE_CROSSCOMPILING)
  add_test(NAME exchange COMMAND ${CMAKE_SOURCE_DIR}/tests/exchange/exchange_test.py $<TARGET_FILE:hxahost>
                                 ${CMAKE_BINARY_DIR}/sample-machine ${CMAKE_BINARY_DIR}/results-exchange.xml)
  set_tests_properties(exchange PROPERTIES TIMEOUT 900 RESOURCE_LOCK sample_machine
                       ENVIRONMENT PYTHONDONTWRITEBYTECODE=1)
endif()

# The examples of the documents for the command prompt, under Wine. All others scripts/test runs on the release build.
if(CMAKE_CROSSCOMPILING)
  add_test(NAME documents COMMAND ${CMAKE_SOURCE_DIR}/tests/documentation/documents_test windows ${CMAKE_BINARY_DIR}
                                  ${CMAKE_BINARY_DIR}/results-documents.xml)
  set_tests_properties(documents PROPERTIES TIMEOUT 900)
endif()

# Many machines together: a scripted day of bundles, through the program, databases and Prometheus.
if(NOT CMAKE_CROSSCOMPILING)
  add_executable(fleet_machines tests/fleet/fleet_machines.cpp tests/support/machine_answers.cpp)
  target_link_libraries(fleet_machines PRIVATE hxahost_objects)
  add_test(NAME fleet COMMAND ${CMAKE_SOURCE_DIR}/tests/fleet/fleet_test ${CMAKE_BINARY_DIR}/bin
                              ${CMAKE_BINARY_DIR}/results-fleet.xml)
  set_tests_properties(fleet PROPERTIES TIMEOUT 900)
endif()

# The report in a real browser, natively alone: the page does not depend on the system that wrote it.
if(NOT CMAKE_CROSSCOMPILING)
  add_executable(report_pages tests/browser/report_pages.cpp tests/support/healthy_machine.cpp)
  target_link_libraries(report_pages PRIVATE hxahost_objects)
  add_test(NAME browser COMMAND node ${CMAKE_SOURCE_DIR}/tests/browser/run.mjs ${CMAKE_BINARY_DIR})
  set_tests_properties(browser PROPERTIES TIMEOUT 900)
endif()
