# Boost, CLI11, fmt and nlohmann-json are headers alone. A cross build must not see the rest of /usr/include, so it gets a
# folder of links that holds just them.
add_library(header_libraries INTERFACE)
if(CMAKE_CROSSCOMPILING)
  set(links ${CMAKE_BINARY_DIR}/header-libraries)
  file(MAKE_DIRECTORY ${links})
  foreach(library boost CLI fmt nlohmann)
    if(NOT IS_DIRECTORY /usr/include/${library})
      message(FATAL_ERROR "/usr/include/${library} is missing: scripts/install-dependencies installs it")
    endif()
    file(CREATE_LINK /usr/include/${library} ${links}/${library} SYMBOLIC)
  endforeach()
  target_include_directories(header_libraries SYSTEM INTERFACE ${links})
else()
  find_package(Boost REQUIRED)
  target_link_libraries(header_libraries INTERFACE Boost::headers)
endif()
# A broken invariant is reported through boost::assertion_failed, also in release builds.
target_compile_definitions(header_libraries INTERFACE BOOST_ENABLE_ASSERT_HANDLER FMT_HEADER_ONLY)
