# Writes what the binaries are made of as SPDX 2.3: the list that tools for known vulnerabilities read. The versions are
# those of the Debian packages that this build took.
set(file "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${sbom}")
string(TIMESTAMP created "%Y-%m-%dT%H:%M:%SZ" UTC) # of SOURCE_DATE_EPOCH, where that is set
string(TIMESTAMP seconds "%s" UTC)

# NAME|Debian package|licence|how it came in
set(components
    "boost|libboost-dev|BSL-1.0|STATIC_LINK"
    "CLI11|libcli11-dev|BSD-3-Clause|STATIC_LINK"
    "fmt|libfmt-dev|MIT|STATIC_LINK"
    "nlohmann-json|nlohmann-json3-dev|MIT|STATIC_LINK")
if(system STREQUAL windows)
  list(APPEND components
       "gcc-runtime|gcc-mingw-w64-x86-64-posix-runtime|GPL-3.0-or-later WITH GCC-exception-3.1|DYNAMIC_LINK"
       "mingw-w64|mingw-w64-x86-64-dev|ZPL-2.1 AND MIT AND BSD-3-Clause|STATIC_LINK")
endif()

set(packages "[]")
set(relationships "[]")
function(add_to LIST OBJECT)
  string(JSON count LENGTH "${${LIST}}")
  string(JSON longer SET "${${LIST}}" ${count} "${OBJECT}")
  set(${LIST} "${longer}" PARENT_SCOPE)
endfunction()

add_to(packages "{\"SPDXID\": \"SPDXRef-zenx\", \"name\": \"zenx\", \"versionInfo\": \"${version}\",
  \"downloadLocation\": \"NOASSERTION\", \"filesAnalyzed\": false, \"licenseConcluded\": \"NOASSERTION\",
  \"licenseDeclared\": \"NOASSERTION\", \"copyrightText\": \"NOASSERTION\"}")
add_to(relationships "{\"spdxElementId\": \"SPDXRef-DOCUMENT\", \"relationshipType\": \"DESCRIBES\",
  \"relatedSpdxElement\": \"SPDXRef-zenx\"}")
foreach(component IN LISTS components)
  string(REPLACE "|" ";" fields "${component}")
  list(GET fields 0 name)
  list(GET fields 1 package)
  list(GET fields 2 licence)
  list(GET fields 3 link)
  execute_process(COMMAND dpkg-query --show "--showformat=\${Version}" ${package}
                  OUTPUT_VARIABLE package_version COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE "+" "%2B" url_version "${package_version}")
  add_to(packages "{\"SPDXID\": \"SPDXRef-${name}\", \"name\": \"${name}\", \"versionInfo\": \"${package_version}\",
    \"downloadLocation\": \"NOASSERTION\", \"filesAnalyzed\": false, \"licenseConcluded\": \"${licence}\",
    \"licenseDeclared\": \"${licence}\", \"copyrightText\": \"NOASSERTION\", \"externalRefs\": [{
      \"referenceCategory\": \"PACKAGE-MANAGER\", \"referenceType\": \"purl\",
      \"referenceLocator\": \"pkg:deb/debian/${package}@${url_version}\"}]}")
  add_to(relationships "{\"spdxElementId\": \"SPDXRef-zenx\", \"relationshipType\": \"${link}\",
    \"relatedSpdxElement\": \"SPDXRef-${name}\"}")
endforeach()

set(document "{\"spdxVersion\": \"SPDX-2.3\", \"dataLicense\": \"CC0-1.0\", \"SPDXID\": \"SPDXRef-DOCUMENT\"}")
string(JSON document SET "${document}" name "\"zenx-${version}-${system}\"")
string(JSON document SET "${document}" documentNamespace
       "\"https://spdx.org/spdxdocs/zenx-${version}-${system}-${seconds}\"")
string(JSON document SET "${document}" creationInfo
       "{\"created\": \"${created}\", \"creators\": [\"Tool: zenx-package\"]}")
string(JSON document SET "${document}" packages "${packages}")
string(JSON document SET "${document}" relationships "${relationships}")
file(WRITE "${file}" "${document}\n")
