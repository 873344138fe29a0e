# Benchmarks run natively, in a release build: scripts/bench. The plug-in is linked in to measure its adapters; everything
# else is measured of the program as it is used.
file(GLOB bench_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/bench/*.cpp)
add_executable(bench ${bench_sources})
target_link_libraries(bench PRIVATE zenx_objects)
add_dependencies(bench sample_machine hxahost)
