# add_manual_page(PAGE PICTURES): makes the manual as one page of HTML, and beside it the folder
# `pictures`, of docs/PICTURES; sets `pictures` to those. Needs CMARK, the program.
function(add_manual_page page folder)
    set(docs ${PROJECT_SOURCE_DIR}/docs)
    set(packaging ${PROJECT_SOURCE_DIR}/packaging)
    get_filename_component(beside ${page} DIRECTORY)
    file(GLOB pictures CONFIGURE_DEPENDS ${docs}/${folder}/*.png)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} -D cmark=${CMARK} -D docs=${docs}
                -D frame=${packaging}/manual.html.in -D page=${page} -P ${packaging}/manual.cmake
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${docs}/${folder} ${beside}/pictures
        DEPENDS ${docs}/manual.md ${docs}/serial-permission.md ${pictures}
                ${packaging}/manual.html.in ${packaging}/manual.cmake
        VERBATIM)
    set(pictures ${pictures} PARENT_SCOPE)
endfunction()
