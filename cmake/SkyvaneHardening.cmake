# What optimised builds of every target are hardened with, as far as this compiler and processor can: canaries on the stack, a
# stack that grows page by page, checked calls of the C library (FORTIFY), branches that land where they may (CET, or its like
# on ARM), and tables of functions that nobody writes once the program runs (immediate binding).
# tests/packaging/check_hardening reads it out of a program. Sanitizers do without: they see more.
include(CheckCXXCompilerFlag)

set(skyvane_hardening)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
    set(skyvane_branches -mbranch-protection=standard)
else()
    set(skyvane_branches -fcf-protection)
endif()
foreach(flag -fstack-protector-strong -fstack-clash-protection ${skyvane_branches})
    string(MAKE_C_IDENTIFIER SKYVANE_HAS${flag} known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
        list(APPEND skyvane_hardening ${flag})
    endif()
endforeach()
if(NOT "${CMAKE_CXX_FLAGS}" MATCHES "_FORTIFY_SOURCE") # A distribution's own is as it wants it.
    list(APPEND skyvane_hardening -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
endif()

function(skyvane_harden name)
    set(optimised "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
    target_compile_options(${name} PRIVATE "$<${optimised}:${skyvane_hardening}>")
    target_link_options(${name} PRIVATE "$<${optimised}:-Wl,-z,relro,-z,now>")
endfunction()
