# The pages of "hxahost query --format html" and "hxahost fleet --format html", as sources of the program. The order of the
# scripts is that of their use.
set(report_folder ${CMAKE_SOURCE_DIR}/host/hxahost/views/report/page)
set(fleet_folder ${CMAKE_SOURCE_DIR}/host/hxahost/fleet/page)

# The page in the template, with the style of the report, given by the function.
function(add_page FUNCTION TEMPLATE)
  list(JOIN ARGN "," script_names)
  set(source ${CMAKE_BINARY_DIR}/generated/${FUNCTION}.cpp)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${CMAKE_COMMAND} -DTEMPLATE=${TEMPLATE} -DSTYLE=${report_folder}/style.css -DSCRIPTS=${script_names}
            -DFUNCTION=${FUNCTION} -DOUTPUT=${source} -P ${CMAKE_SOURCE_DIR}/cmake/report_template.cmake
    DEPENDS ${TEMPLATE} ${report_folder}/style.css ${ARGN} ${CMAKE_SOURCE_DIR}/cmake/report_template.cmake
    VERBATIM)
  target_sources(hxahost_objects PRIVATE ${source})
  # The standard asks compilers for no longer texts than 65536 characters; those that build this take any.
  set_source_files_properties(${source} PROPERTIES
                              COMPILE_OPTIONS $<$<CXX_COMPILER_ID:Clang>:-Wno-overlength-strings>)
endfunction()

set(report_scripts text elements data levels model details tables drawing timeline raw_text sections page)
list(TRANSFORM report_scripts REPLACE "(.+)" "${report_folder}/\\1.js")
add_page(ReportTemplate ${report_folder}/report_template.html ${report_scripts})

set(fleet_scripts text elements data levels tables sections)
list(TRANSFORM fleet_scripts REPLACE "(.+)" "${report_folder}/\\1.js")
add_page(FleetTemplate ${fleet_folder}/fleet_template.html ${fleet_scripts} ${fleet_folder}/fleet.js)
