# Fails where a file of the product includes what its folder must not know. Run from the top of the tree by every build:
#   cmake -P cmake/check_includes.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Rooms.cmake)

function(report line)
  message(NOTICE "${line}")
  set_property(GLOBAL PROPERTY found YES)
endfunction()

# Files of the folder (or the one file) may include its own and what is listed, folders or files. What an earlier line is
# about is left out.
function(may_include folder)
  list(JOIN ARGN "|" others)
  if(IS_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    file(GLOB_RECURSE files RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${folder}/*.h ${folder}/*.cpp)
  elseif(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    set(files ${folder})
  endif()
  get_property(checked GLOBAL PROPERTY checked)
  list(REMOVE_ITEM files ${checked})
  foreach(file ${files})
    file(STRINGS ${file} includes REGEX "^#include [\"<]")
    foreach(include ${includes})
      string(REGEX REPLACE "^#include ([\"<][^\">]+).*" "\\1" include ${include})
      if(include MATCHES "^<windows\\.h$" AND NOT file MATCHES "/windows/|/library_entry_windows\\.cpp$")
        report("${file} includes <windows.h>: only files in a folder windows/ and the library entry do.")
      elseif(include MATCHES "^\"" AND NOT include MATCHES "^\"(${folder}|${others})(/|$)")
        list(JOIN ARGN ", " allowed)
        report("${file} includes ${include}\": ${folder} may include its own files and ${allowed}.")
      endif()
    endforeach()
  endforeach()
  set_property(GLOBAL APPEND PROPERTY checked ${files})
endfunction()

# The plug-in. What logs is a handle of the host.
set(host plugin/host_interface)
may_include(plugin/host_interface)
may_include(platform collect/host_handle.h)
may_include(collect/collection_driver.cpp collect tools ${host})  # the driver
may_include(collect ${host})
may_include(logs collect platform ${host})
may_include(tools/known_tools.h tools)
file(GLOB tools RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} tools/*)
foreach(tool ${tools})
  may_include(${tool} collect logs platform ${host})
endforeach()
may_include(publish collect logs ${host})
may_include(plugin publish collect platform/raid_log_limit.h platform/recorded_system.h
            ${host})

# The host. It shares with the plug-in what the host declares, what describes a system, and constant tables.
may_include(host/hxacore platform/ordinary_file.h ${host})
may_include(host/plugin_manager host/hxacore ${host})
set(below host/hxacore host/plugin_manager ${host} platform tools/known_tools.h)
list(REVERSE hxahost_rooms)
foreach(room ${hxahost_rooms})
  may_include(host/hxahost/${room} ${below})
  list(APPEND below host/hxahost/${room})
endforeach()

get_property(found GLOBAL PROPERTY found)
if(found)
  message(FATAL_ERROR "Includes go one way; see above.")
endif()
