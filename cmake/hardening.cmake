# What distributions harden their programs with. Fortified sources need optimization; whoever passes
# a level of their own keeps it.
include(CheckPIESupported)
check_pie_supported()
add_compile_options(-fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
  add_compile_options(-fcf-protection)
endif()
if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
  add_compile_options(
    "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()
add_link_options(-Wl,-z,relro,-z,now)
