# What is installed where, and the Debian package that CPack makes of it.
include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(made ${PROJECT_BINARY_DIR}/packaging)
file(MAKE_DIRECTORY ${made})

install(TARGETS keplin keplin-demo)
install(FILES ${PROJECT_SOURCE_DIR}/samples/QDX-470-sample.HEX
        DESTINATION ${CMAKE_INSTALL_DATADIR}/keplin)
install(FILES ${packaging}/example.keplin.keplin.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The icons are drawn with the Qt that is there anyway, by the drawing made for their size.
add_executable(draw-icon ${packaging}/draw_icon.cpp)
target_link_libraries(draw-icon PRIVATE Qt6::Gui Qt6::Svg keplin_options)
set(drawing_16 keplin-16)
set(drawing_32 keplin-32)
set(band_16 demo-band-16)

# add_icon(SIZE NAME DRAWING...): the icon of that name, its drawings one over the other.
function(add_icon size name)
    list(TRANSFORM ARGN PREPEND ${packaging}/icons/ OUTPUT_VARIABLE drawings)
    list(TRANSFORM drawings APPEND .svg)
    set(icon ${made}/${size}/${name}.png)
    add_custom_command(OUTPUT ${icon} COMMAND draw-icon ${size} ${icon} ${drawings}
                       DEPENDS draw-icon ${drawings})
    install(FILES ${icon}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
    set(icons ${icons} ${icon} PARENT_SCOPE)
endfunction()
foreach(size IN ITEMS 16 32 48 64 128 256)
    set(drawing keplin)
    if(DEFINED drawing_${size})
        set(drawing ${drawing_${size}})
    endif()
    set(band demo-band)
    if(DEFINED band_${size})
        set(band ${band_${size}})
    endif()
    add_icon(${size} keplin ${drawing})
    add_icon(${size} keplin-demo ${drawing} ${band})
endforeach()
install(FILES ${packaging}/icons/keplin.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The manual, as one page with its pictures. F1 finds it beside the programs, installed or built.
set(manual_folder ${CMAKE_INSTALL_DATADIR}/keplin/manual)
find_program(CMARK cmark-gfm)
if(CMARK)
    set(page ${PROJECT_BINARY_DIR}/share/keplin/manual/manual.html)
    include(packaging/manual_page.cmake)
    add_manual_page(${page} pictures)
    install(FILES ${page} DESTINATION ${manual_folder})
    install(FILES ${pictures} DESTINATION ${manual_folder}/pictures)
    # Where documents are looked for.
    file(CREATE_LINK ../../keplin/manual ${made}/manual SYMBOLIC)
    install(FILES ${made}/manual DESTINATION ${CMAKE_INSTALL_DOCDIR})
else()
    message(WARNING "cmark-gfm was not found: there will be no manual for F1 to open.")
endif()

# The desktop entries name the manual where it is installed, which only the installation knows.
foreach(entry IN ITEMS keplin keplin-demo)
    install(CODE "
        set(manual \"\${CMAKE_INSTALL_PREFIX}/${manual_folder}/manual.html\")
        configure_file(\"${packaging}/${entry}.desktop.in\" \"${made}/${entry}.desktop\" @ONLY)")
    install(FILES ${made}/${entry}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
endforeach()

# compress(FILE NAME DESTINATION): installs a file as Debian wants its documents, NAME.gz.
function(compress file name destination)
    set(packed ${made}/${name}.gz)
    add_custom_command(OUTPUT ${packed}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${made}
        COMMAND gzip -9n -c ${file} > ${packed}
        DEPENDS ${file} VERBATIM)
    install(FILES ${packed} DESTINATION ${destination})
    set(documents ${documents} ${packed} PARENT_SCOPE)
endfunction()
compress(${packaging}/keplin.1 keplin.1 ${CMAKE_INSTALL_MANDIR}/man1)
compress(${packaging}/keplin-demo.1 keplin-demo.1 ${CMAKE_INSTALL_MANDIR}/man1)
compress(${packaging}/changelog changelog ${CMAKE_INSTALL_DOCDIR})
install(FILES ${packaging}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
add_custom_target(packaging-files ALL DEPENDS ${icons} ${page} ${documents})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Keplin maintainers <maintainers@keplin.example>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/build/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Wayland alone needs Qt's part for it; xdg-utils opens the manual.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, libqt6svg6, qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "\
Keplin finds the serial port on which a QDX-470 controller answers in its
in-system-programming mode, erases the controller's program memory, sends it
an update file line by line, and says that the update is complete only when
the controller has acknowledged every line.
.
The package also holds keplin-demo, the same program with a simulated
controller plugged in.")
include(CPack)
