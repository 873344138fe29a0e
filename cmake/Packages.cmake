# What is installed, and the packages that scripts/package makes of it: for Windows a folder that runs where it is
# unpacked; for Linux a tree with private libraries and plug-ins in lib/zenx. The program finds them beside itself: the
# command in bin/ is a link to it, and both the loader and the program follow links before they look.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON) # tests are built with the tree, never packed
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(programs_folder $<IF:$<BOOL:${WIN32}>,.,lib/zenx>)
install(TARGETS hxahost hxacore plugin_manager zenx RUNTIME DESTINATION ${programs_folder}
        LIBRARY DESTINATION ${programs_folder})

file(GLOB documents CONFIGURE_DEPENDS docs/*.md)
if(WIN32)
  foreach(runtime ${runtime_libraries})
    install(PROGRAMS ${CMAKE_BINARY_DIR}/bin/${runtime} DESTINATION .)
  endforeach()
  # For an editor that knows no line end but its own.
  set(texts ${CMAKE_SOURCE_DIR}/README.md=README.txt ${CMAKE_SOURCE_DIR}/CHANGELOG.md=CHANGELOG.txt
            ${CMAKE_SOURCE_DIR}/packaging/utilities.txt=zenx/put-the-utilities-here.txt
            ${CMAKE_SOURCE_DIR}/packaging/licences.md=licences/README.txt
            ${CMAKE_SOURCE_DIR}/share/windows/report.cmd=report.cmd
            ${CMAKE_SOURCE_DIR}/share/prometheus/zenx.rules.yml=prometheus/zenx.rules.yml
            ${CMAKE_SOURCE_DIR}/share/prometheus/zenx-fleet.rules.yml=prometheus/zenx-fleet.rules.yml
            ${CMAKE_SOURCE_DIR}/share/completion/hxahost.ps1=completion/hxahost.ps1
            ${CMAKE_SOURCE_DIR}/share/grafana/zenx.json=grafana/zenx.json
            ${CMAKE_SOURCE_DIR}/share/schema/health.schema.json=schema/health.schema.json)
  foreach(name duckdb parquet postgresql queries sqlite views)
    list(APPEND texts ${CMAKE_SOURCE_DIR}/share/sql/${name}.sql=sql/${name}.sql)
  endforeach()
  foreach(document ${documents})
    cmake_path(GET document FILENAME name)
    list(APPEND texts ${document}=docs/${name})
  endforeach()
  install(DIRECTORY docs/images DESTINATION docs)
  install(CODE "set(texts \"${texts}\")\nset(licences licences)
    set(task \"${CMAKE_SOURCE_DIR}/share/windows/zenx-health.xml\")
    set(runtime_libraries \"${runtime_libraries}\")
    set(strip \"${CMAKE_STRIP}\")")
else()
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
  file(CREATE_LINK ../lib/zenx/hxahost ${CMAKE_BINARY_DIR}/packaging/hxahost SYMBOLIC)
  install(FILES ${CMAKE_BINARY_DIR}/packaging/hxahost DESTINATION bin)
  install(DIRECTORY share/prometheus share/grafana share/schema share/sql DESTINATION share/zenx)
  install(FILES share/systemd/zenx-health.service share/systemd/zenx-health.timer DESTINATION lib/systemd/system)
  install(FILES share/completion/hxahost.bash DESTINATION share/bash-completion/completions RENAME hxahost)
  install(FILES share/completion/hxahost.zsh DESTINATION share/zsh/vendor-completions RENAME _hxahost)
  install(FILES README.md packaging/licences.md DESTINATION share/doc/zenx)
  install(FILES ${documents} DESTINATION share/doc/zenx/docs)
  install(DIRECTORY docs/images DESTINATION share/doc/zenx/docs)
  install(FILES packaging/lintian-overrides DESTINATION share/lintian/overrides RENAME zenx)
  add_custom_command(TARGET hxahost POST_BUILD VERBATIM
    COMMAND hxahost manual > ${CMAKE_BINARY_DIR}/hxahost.1 BYPRODUCTS ${CMAKE_BINARY_DIR}/hxahost.1)
  install(CODE "set(zipped_texts \"${CMAKE_BINARY_DIR}/hxahost.1=share/man/man1/hxahost.1;\
${CMAKE_SOURCE_DIR}/CHANGELOG.md=share/doc/zenx/changelog\")
    set(licences share/doc/zenx/licences)
    set(debian_changelog share/doc/zenx/changelog.Debian)
    set(debian_copyright share/doc/zenx/copyright)
    set(debian_version ${PROJECT_VERSION}-1)")
endif()
install(CODE "set(packaging \"${CMAKE_SOURCE_DIR}/packaging\")
  set(system ${system})
  set(version ${PROJECT_VERSION})
  set(sbom $<IF:$<BOOL:${WIN32}>,licences,share/doc/zenx>/zenx.spdx.json)")
install(SCRIPT cmake/install_texts.cmake)
install(SCRIPT cmake/install_sbom.cmake)

# The .deb. scripts/package makes the archives of what is installed.
if(NOT WIN32)
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGE_NAME zenx)
  set(CPACK_PACKAGE_VENDOR "the owner of zenx")
  set(CPACK_PACKAGE_CONTACT "the owner of zenx <owner@localhost>")
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "RAID collector plug-in and its stand-alone host")
  set(CPACK_PACKAGE_DIRECTORY ${CMAKE_SOURCE_DIR}/build/packages)
  set(CPACK_STRIP_FILES ON)
  set(CPACK_VERBATIM_VARIABLES ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
  set(CPACK_DEBIAN_PACKAGE_SECTION admin)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/bin)
  file(GLOB CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA CONFIGURE_DEPENDS packaging/debian/*)
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
  file(READ packaging/description.txt CPACK_DEBIAN_PACKAGE_DESCRIPTION)
  include(CPack)
endif()
