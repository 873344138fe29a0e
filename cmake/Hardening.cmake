# The program runs with the rights of an administrator and reads what others wrote: the compiler's protection is on.
# tests/binaries checks that each binary has it. Sanitizers bring their own, and fortified functions need optimisation.
set(protection -fstack-protector-strong -fcf-protection=full)
if(NOT ZENX_SANITIZE)
  target_compile_options(compile_options INTERFACE ${protection} $<$<CONFIG:Release>:-U_FORTIFY_SOURCE>
                                                   $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
  target_link_options(compile_options INTERFACE -fstack-protector-strong)
endif()
target_compile_definitions(compile_options INTERFACE _GLIBCXX_ASSERTIONS)
if(WIN32)
  target_link_options(compile_options INTERFACE -Wl,--dynamicbase,--nxcompat,--high-entropy-va)
else()
  target_compile_options(compile_options INTERFACE -fstack-clash-protection)
  target_link_options(compile_options INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()
