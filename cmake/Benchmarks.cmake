# Benchmarks run natively, in a release build. scripts/bench runs them all.
file(GLOB bench_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/bench/*.cpp)
add_executable(bench ${bench_sources})
# What is counted is what one function calls, which so must not be put into its caller.
set_source_files_properties(${CMAKE_SOURCE_DIR}/bench/measured.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
target_link_libraries(bench PRIVATE zenx_objects hxahost_objects)
add_dependencies(bench sample_machine zenx)
