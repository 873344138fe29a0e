# The four binaries: hxacore, plugin.nsp, zenx.pi and hxahost. Each folder's .cpp files belong to the binary of the
# folder; what differs between systems is in a folder windows/ or posix/ beside them.
if(WIN32)
  set(system windows)
else()
  set(system posix)
endif()

# Sets VARIABLE to the sources of the folders, those for this system included.
function(sources_of VARIABLE)
  set(patterns)
  foreach(folder ${ARGN})
    list(APPEND patterns ${folder}/*.cpp ${folder}/${system}/*.cpp)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  set(${VARIABLE} ${sources} PARENT_SCOPE)
endfunction()

# What most files include of libraries, compiled once for each of the large targets where little is optimised: by the
# preset asan and for docs/how-to.md. What is shipped is built without: GCC 12 takes headers that were compiled before for
# the program's own when it optimises, and then warns of copies that the library does not make.
set(common_headers <algorithm> <boost/shared_ptr.hpp> <chrono> <cstdint> <filesystem> <functional> <map> <memory>
                   <optional> <ostream> <set> <span> <sstream> <stdexcept> <string> <string_view> <utility> <variant>
                   <vector>)

# Every binary is built from hxacore: what includes something it must not is found first.
add_custom_target(includes COMMAND ${CMAKE_COMMAND} -P ${CMAKE_SOURCE_DIR}/cmake/check_includes.cmake
                  WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} COMMENT "Checking what files include" VERBATIM)

sources_of(hxacore_sources host/hxacore)
add_library(hxacore SHARED ${hxacore_sources} plugin/host_interface/assertion_failed.cpp)
add_dependencies(hxacore includes)
target_compile_definitions(hxacore PRIVATE HXACORE_BUILD)
target_link_libraries(hxacore PUBLIC compile_options PRIVATE platform_answers)
if(WIN32)
  set_target_properties(hxacore PROPERTIES PREFIX "")
endif()

# What every other binary has a copy of.
add_library(host_interface STATIC plugin/host_interface/assertion_failed.cpp)
target_link_libraries(host_interface PUBLIC hxacore)

sources_of(plugin_manager_sources host/plugin_manager)
add_library(plugin_manager SHARED ${plugin_manager_sources})
target_compile_definitions(plugin_manager PRIVATE PLUGIN_NSP_BUILD)
target_link_libraries(plugin_manager PUBLIC hxacore PRIVATE host_interface)
set_target_properties(plugin_manager PROPERTIES PREFIX "" OUTPUT_NAME plugin SUFFIX .nsp)

# What the system reports about itself: to the plug-in, and to the program that records what the plug-in receives.
add_library(platform_answers STATIC platform/ordinary_file.cpp platform/recorded_system.cpp
                                    platform/${system}/ordinary_file.cpp platform/${system}/os_version.cpp
                                    platform/${system}/registry.cpp)
target_link_libraries(platform_answers PUBLIC compile_options)

file(GLOB tool_folders RELATIVE ${CMAKE_SOURCE_DIR} CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tools/*)
sources_of(zenx_sources collect ${tool_folders} logs publish platform)
get_target_property(answers platform_answers SOURCES)
list(TRANSFORM answers PREPEND ${CMAKE_SOURCE_DIR}/)
list(REMOVE_ITEM zenx_sources ${answers})
add_library(zenx_objects OBJECT ${zenx_sources} plugin/callbacks.cpp plugin/query.cpp)
target_link_libraries(zenx_objects PUBLIC host_interface plugin_manager platform_answers)
add_library(zenx SHARED plugin/library_entry_${system}.cpp)
target_link_libraries(zenx PRIVATE zenx_objects)
# The plug-in exports nothing: it registers itself when it is loaded.
set_target_properties(zenx PROPERTIES PREFIX "" OUTPUT_NAME zenx SUFFIX .pi)
set_target_properties(zenx zenx_objects platform_answers PROPERTIES CXX_VISIBILITY_PRESET hidden
                      VISIBILITY_INLINES_HIDDEN ON)
if(WIN32)
  target_link_options(zenx PRIVATE -Wl,--exclude-all-symbols)
else()
  target_link_options(zenx PRIVATE -Wl,--version-script=${CMAKE_SOURCE_DIR}/plugin/no_exports.map)
endif()
if(WIN32)
  target_link_libraries(zenx_objects PUBLIC setupapi cfgmgr32)
endif()
# Of the plug-in alone: scripts/coverage holds its lines against a list.
if(ZENX_COVERAGE)
  foreach(counted zenx_objects zenx)
    target_compile_options(${counted} PRIVATE --coverage)
  endforeach()
  target_link_options(zenx_objects INTERFACE --coverage)
  # Counts of what was built before do not fit: each program would say so on standard error, for each function.
  add_custom_command(TARGET zenx PRE_LINK COMMAND find ${CMAKE_BINARY_DIR} -name *.gcda -delete VERBATIM)
endif()

# The program's own code is a library, so that tests can call it.
include(Rooms)
list(TRANSFORM hxahost_rooms PREPEND host/hxahost/ OUTPUT_VARIABLE hxahost_folders)
sources_of(hxahost_sources ${hxahost_folders} host/hxahost/views/*)
list(REMOVE_ITEM hxahost_sources ${CMAKE_SOURCE_DIR}/host/hxahost/program/main.cpp)
add_library(hxahost_objects OBJECT ${hxahost_sources})
target_link_libraries(hxahost_objects PUBLIC host_interface plugin_manager platform_answers)
target_compile_definitions(hxahost_objects PRIVATE ZENX_VERSION="${PROJECT_VERSION}")
add_executable(hxahost host/hxahost/program/main.cpp)
target_link_libraries(hxahost PRIVATE hxahost_objects)
add_dependencies(hxahost zenx)

foreach(target zenx_objects hxahost_objects)
  target_precompile_headers(${target} PRIVATE ${common_headers})
endforeach()

# Programs find a DLL beside themselves: the compiler's runtime is put there, so that the folder runs as it is.
if(MINGW)
  set(runtime_libraries libstdc++-6.dll libgcc_s_seh-1.dll libssp-0.dll libwinpthread-1.dll)
  foreach(runtime ${runtime_libraries})
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime} OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    file(REAL_PATH ${path} path)
    configure_file(${path} ${CMAKE_BINARY_DIR}/bin/${runtime} COPYONLY)
  endforeach()
endif()

add_windows_resources(hxahost "RAID collector: shows which disk to replace")
add_windows_resources(hxacore "RAID collector: services of the stand-alone host")
add_windows_resources(plugin_manager "RAID collector: plug-in manager of the stand-alone host")
add_windows_resources(zenx "RAID collector: plug-in")
