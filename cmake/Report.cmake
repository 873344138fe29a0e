# The page of "hxahost query --format html", as a source of the program. The order of the scripts is that of their use.
set(report_folder ${CMAKE_SOURCE_DIR}/host/hxahost/views/report/page)
set(report_scripts text elements data levels model details tables drawing timeline raw_text page)
list(TRANSFORM report_scripts REPLACE "(.+)" "${report_folder}/\\1.js")
list(JOIN report_scripts "," report_script_names)
set(report_source ${CMAKE_BINARY_DIR}/generated/report_template.cpp)
add_custom_command(
  OUTPUT ${report_source}
  COMMAND ${CMAKE_COMMAND} -DTEMPLATE=${report_folder}/report_template.html
          -DSTYLE=${report_folder}/style.css -DSCRIPTS=${report_script_names} -DOUTPUT=${report_source}
          -P ${CMAKE_SOURCE_DIR}/cmake/report_template.cmake
  DEPENDS ${report_folder}/report_template.html ${report_folder}/style.css ${report_scripts}
          ${CMAKE_SOURCE_DIR}/cmake/report_template.cmake
  VERBATIM)
target_sources(hxahost_objects PRIVATE ${report_source})
# The standard asks compilers for no longer texts than 65536 characters; those that build this take any.
set_source_files_properties(${report_source} PROPERTIES
                            COMPILE_OPTIONS $<$<CXX_COMPILER_ID:Clang>:-Wno-overlength-strings>)
