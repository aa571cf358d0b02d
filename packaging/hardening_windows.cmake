# As far as Windows and MinGW go: addresses that differ from start to start, data that is not
# executed, checked stack frames and library calls, marks where an indirect call may land.
# `./test windows` looks for it in the programs.
add_compile_options(-fstack-protector-strong -fcf-protection -Wformat
                    -Werror=format-security -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
add_link_options(-fstack-protector-strong -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va)
