# Installs what is made of texts: those with Windows' line ends, zipped ones, and the licences of what is built in.
set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

function(write_windows_lines FROM TO)
  file(READ "${FROM}" lines)
  string(REPLACE "\r\n" "\n" lines "${lines}")
  if(TO MATCHES "\\.txt$") # plain text: without the pictures and comments of Markdown
    string(REGEX REPLACE "(^|\n)(!\\[|<!--)[^\n]*" "" lines "${lines}")
  endif()
  string(REPLACE "\n" "\r\n" lines "${lines}")
  file(WRITE "${TO}" "${lines}")
endfunction()

# Each element of texts is FROM=TO.
foreach(text IN LISTS texts)
  string(REGEX MATCH "^(.*)=(.*)$" both "${text}")
  write_windows_lines("${CMAKE_MATCH_1}" "${root}/${CMAKE_MATCH_2}")
endforeach()

# UTF-16, as the task scheduler writes its own files. An encoding that the first line named would have to be that one.
if(task)
  set(to "${root}/task-scheduler/zenx-health.xml")
  write_windows_lines("${task}" "${to}.utf-8")
  execute_process(COMMAND iconv -f UTF-8 -t UTF-16 "${to}.utf-8" OUTPUT_FILE "${to}" COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE "${to}.utf-8")
endif()

# Without the time and the name of the file, which would make each package another one.
function(zip FILE)
  execute_process(COMMAND gzip -9nf "${root}/${FILE}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(text IN LISTS zipped_texts)
  string(REGEX MATCH "^(.*)=(.*)$" both "${text}")
  set(to "${root}/${CMAKE_MATCH_2}")
  cmake_path(GET to PARENT_PATH folder)
  file(MAKE_DIRECTORY "${folder}")
  file(COPY_FILE "${CMAKE_MATCH_1}" "${to}")
  zip("${CMAKE_MATCH_2}")
endforeach()

# What Debian says of the packages that the binaries are built with. Boost's file is of two megabytes: its licence alone.
set(says /usr/share/doc)
file(MAKE_DIRECTORY "${root}/${licences}")
file(COPY_FILE ${says}/libcli11-dev/copyright "${root}/${licences}/cli11.txt")
file(COPY_FILE ${says}/libfmt-dev/copyright "${root}/${licences}/fmt.txt")
file(COPY_FILE ${says}/nlohmann-json3-dev/copyright "${root}/${licences}/nlohmann-json.txt")
file(GLOB boost ${says}/libboost1.*-dev/copyright)
set(whole_licence "/^License: BSL-1.0/ { n = 1; text = \"\" } n { text = text $0 \"\\n\" }
                   /^$/ { if (text ~ /Permission is hereby granted/) { printf \"%s\", text; exit } n = 0 }")
execute_process(COMMAND awk "${whole_licence}" ${boost}
                OUTPUT_FILE "${root}/${licences}/boost.txt" COMMAND_ERROR_IS_FATAL ANY)
file(SIZE "${root}/${licences}/boost.txt" size)
if(size EQUAL 0)
  message(FATAL_ERROR "The licence of Boost is not in ${boost}")
endif()
if(runtime_libraries)
  file(COPY_FILE ${says}/gcc-mingw-w64-x86-64-posix-runtime/copyright "${root}/${licences}/gcc-runtime.txt")
  file(COPY_FILE ${says}/mingw-w64-x86-64-dev/copyright "${root}/${licences}/mingw-w64.txt")
  file(COPY_FILE /usr/share/common-licenses/GPL-3 "${root}/${licences}/gpl-3.txt")
  file(GLOB copies "${root}/${licences}/*.txt")
  foreach(copy IN LISTS copies)
    write_windows_lines("${copy}" "${copy}")
  endforeach()
endif()

if(debian_changelog)
  file(COPY_FILE "${packaging}/debian-copyright" "${root}/${debian_copyright}")
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC) # of SOURCE_DATE_EPOCH, where that is set
  file(WRITE "${root}/${debian_changelog}" "zenx (${debian_version}) unstable; urgency=medium

  * See changelog.gz.

 -- the owner of zenx <owner@localhost>  ${date}
")
  zip(${debian_changelog})
endif()

# Nine tenths of the compiler's runtime are for its debugger.
foreach(library IN LISTS runtime_libraries)
  execute_process(COMMAND "${strip}" "${root}/${library}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
