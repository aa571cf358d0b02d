# What is installed where, and the Debian package that CPack makes of it.
include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(made ${PROJECT_BINARY_DIR}/packaging)

install(TARGETS keplin keplin-demo)
install(FILES ${PROJECT_SOURCE_DIR}/samples/QDX-470-sample.HEX
        DESTINATION ${CMAKE_INSTALL_DATADIR}/keplin)
install(FILES ${packaging}/keplin.desktop ${packaging}/keplin-demo.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/example.keplin.keplin.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The icons are drawn with the Qt that is there anyway, by the drawing made for their size.
add_executable(draw-icon ${packaging}/draw_icon.cpp)
target_link_libraries(draw-icon PRIVATE Qt6::Gui Qt6::Svg keplin_options)
set(drawing_16 keplin-16)
set(drawing_32 keplin-32)
foreach(size IN ITEMS 16 32 48 64 128 256)
    set(drawing keplin)
    if(DEFINED drawing_${size})
        set(drawing ${drawing_${size}})
    endif()
    set(icon ${made}/${size}/keplin.png)
    add_custom_command(OUTPUT ${icon}
        COMMAND draw-icon ${packaging}/icons/${drawing}.svg ${size} ${icon}
        DEPENDS draw-icon ${packaging}/icons/${drawing}.svg)
    list(APPEND icons ${icon})
    install(FILES ${icon}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${packaging}/icons/keplin.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

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
install(FILES ${packaging}/copyright ${PROJECT_SOURCE_DIR}/docs/serial-permission.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
add_custom_target(packaging-files ALL DEPENDS ${icons} ${documents})

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
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS fonts-liberation)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "\
Keplin finds the serial port on which a QDX-470 controller answers in its
in-system-programming mode, erases the controller's program memory, sends it
an update file line by line, and says that the update is complete only when
the controller has acknowledged every line.
.
The package also holds keplin-demo, the same program with a simulated
controller plugged in.")
include(CPack)
