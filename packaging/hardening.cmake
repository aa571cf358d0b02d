# What Debian hardens its own packages with (dpkg-buildflags, hardening=+all), and control-flow
# protection where the processor has one. .ci/package looks for all of it in the installed programs.
include(CheckCXXCompilerFlag)

add_compile_options(-fPIE -fstack-protector-strong -Wformat -Werror=format-security)
foreach(flag IN ITEMS -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "KEPLIN_HAS${flag}" known)
    check_cxx_compiler_flag("-Werror ${flag}" ${known})
    if(${known})
        add_compile_options(${flag})
    endif()
endforeach()
# Some distributions' compilers set a level of their own. As options both: CMake would put a
# definition in front of what takes it away.
add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
add_link_options(-pie -Wl,-z,relro -Wl,-z,now)
