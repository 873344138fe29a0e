# Makes a C++ source of the report's page, so that the program needs no file beside itself:
#   cmake -DTEMPLATE=page.html -DSTYLE=style.css -DSCRIPTS=a.js,b.js -DFUNCTION=ReportTemplate -DOUTPUT=page.cpp
#         -P report_template.cmake
# The style and the script are put into the template together with their hashes: the page's policy lets nothing else run.

# Sets VARIABLE to the SHA-256 of TEXT as a policy names it, in base 64.
function(policy_hash VARIABLE TEXT)
  set(alphabet "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
  string(SHA256 hex "${TEXT}")
  string(APPEND hex "00") # 33 bytes are eleven groups of three
  set(text "")
  foreach(group RANGE 10)
    math(EXPR begin "${group} * 6")
    string(SUBSTRING "${hex}" ${begin} 6 digits)
    foreach(shift 18 12 6 0)
      math(EXPR index "(0x${digits} >> ${shift}) & 63")
      string(SUBSTRING "${alphabet}" ${index} 1 character)
      string(APPEND text "${character}")
    endforeach()
  endforeach()
  string(SUBSTRING "${text}" 0 43 text) # the last character replaces the added byte
  set(${VARIABLE} "${text}=" PARENT_SCOPE)
endfunction()

file(READ "${TEMPLATE}" page)
file(READ "${STYLE}" style)
string(REPLACE "," ";" scripts "${SCRIPTS}")
set(script "\"use strict\";\n")
foreach(file IN LISTS scripts)
  file(READ "${file}" text)
  string(APPEND script "\n${text}")
endforeach()

policy_hash(style_hash "${style}")
policy_hash(script_hash "${script}")
foreach(part style script style_hash script_hash)
  string(TOUPPER "@${part}@" mark)
  string(REPLACE "${mark}" "${${part}}" page "${page}")
endforeach()

set(delimiter "report_page")
string(FIND "${page}" ")${delimiter}\"" end)
if(NOT end EQUAL -1)
  message(FATAL_ERROR "The page of the report contains what ends a C++ text: )${delimiter}\"")
endif()
file(WRITE "${OUTPUT}" "#include \"host/hxahost/views/report/report_template.h\"

namespace hxahost {

std::string_view ${FUNCTION}() {
  return R\"${delimiter}(${page})${delimiter}\";
}

}  // namespace hxahost
")
