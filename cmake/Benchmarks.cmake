# Benchmarks run natively, in a release build. scripts/bench runs them all.
file(GLOB bench_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/bench/*.cpp)
add_executable(bench ${bench_sources})
target_link_libraries(bench PRIVATE zenx_objects hxahost_objects)
add_dependencies(bench sample_machine zenx)
