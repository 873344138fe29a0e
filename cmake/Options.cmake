# How every binary is compiled. Warnings are errors.
add_library(compile_options INTERFACE)
target_include_directories(compile_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(compile_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# In release builds GCC 12 takes texts that are put together for copies that overlap. They cannot.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(compile_options INTERFACE -Wno-restrict)
endif()
target_link_libraries(compile_options INTERFACE header_libraries)
if(WIN32)
  target_compile_definitions(compile_options INTERFACE _WIN32_WINNT=0x0601 WIN32_LEAN_AND_MEAN NOMINMAX)
endif()
if(ZENX_SANITIZE)
  # Reports name functions and lines, which takes no more than the first level of debugging information.
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  target_compile_options(compile_options INTERFACE ${sanitizers})
  target_link_options(compile_options INTERFACE -fsanitize=address,undefined)
endif()
