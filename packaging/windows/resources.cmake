# The resources of a Windows program. Its pictures are made of the drawings as it is built: pixels
# for the usual magnifications, the icons in the system's own format.
enable_language(RC)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(CONVERT convert REQUIRED)
set(RESOURCE_FOLDER ${PROJECT_BINARY_DIR}/resources)
file(MAKE_DIRECTORY ${RESOURCE_FOLDER})

# A drawing as so many pixels on a colour, run-length encoded.
function(add_picture drawing width height)
    set(svg ${PROJECT_SOURCE_DIR}/packaging/pictures/${drawing}.svg)
    set(made ${RESOURCE_FOLDER}/${drawing}-${width})
    add_custom_command(OUTPUT ${made}.bmp DEPENDS ${svg}
        COMMAND ${RSVG_CONVERT} -w ${width} -h ${height} "--background-color=rgb(192,192,255)" ${svg} -o ${made}.png
        COMMAND ${CONVERT} ${made}.png +dither -type Palette -compress RLE BMP3:${made}.bmp VERBATIM)
    set(picture_files ${picture_files} ${made}.bmp PARENT_SCOPE)
endfunction()
add_picture(getting-started 292 105)
add_picture(getting-started 365 131)
add_picture(getting-started 438 158)
add_picture(getting-started 584 210)

# The icon in all sizes that the system asks for. The band, if there is one, goes across it.
function(add_icon name)
    set(made ${RESOURCE_FOLDER}/${name})
    foreach(size IN ITEMS 16 20 24 32 40 48 64 256)
        set(layers keplin ${ARGN})
        if(size LESS_EQUAL 16)
            list(TRANSFORM layers APPEND -16)
        elseif(size LESS_EQUAL 32)
            set(layers keplin-32 ${ARGN})
        endif()
        set(images)
        foreach(layer IN LISTS layers)
            set(svg ${PROJECT_SOURCE_DIR}/packaging/icons/${layer}.svg)
            set(image ${made}-${layer}-${size}.png)
            list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} ${svg} -o ${image})
            list(APPEND images ${image})
            list(APPEND drawings ${svg})
        endforeach()
        list(APPEND all "(" -background none ${images} -flatten ")")
    endforeach()
    add_custom_command(OUTPUT ${made}.ico DEPENDS ${drawings} ${commands}
                       COMMAND ${CONVERT} ${all} ${made}.ico VERBATIM)
    set(picture_files ${picture_files} ${made}.ico PARENT_SCOPE)
endfunction()
add_icon(keplin)
add_icon(keplin-demo demo-band)

add_custom_target(picture-files DEPENDS ${picture_files})

# add_resources(target TITLE [ICON]): the title is what the system calls the program; the icon is its
# own where that is not the product's.
function(add_resources target RESOURCE_TITLE)
    set(RESOURCE_PROGRAM ${target})
    if(ARGN)
        set(RESOURCE_OWN_ICON "APPLICATION ICON \"${RESOURCE_FOLDER}/${ARGN}.ico\"")
    endif()
    set(script ${RESOURCE_FOLDER}/${target}.rc)
    set(manifest ${RESOURCE_FOLDER}/${target}.manifest)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${script} @ONLY)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest.in ${manifest} @ONLY)
    set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${picture_files};${manifest}")
    target_sources(${target} PRIVATE ${script})
    add_dependencies(${target} picture-files)
endfunction()
