# Drawings and the icons that are made of them at build time.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# velkarix_drawings(<variable> <folder>): the drawings in a folder, without those for small sizes.
function(velkarix_drawings variable folder)
    file(GLOB drawings CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.svg)
    list(FILTER drawings EXCLUDE REGEX "\\.small\\.svg$")
    set(${variable} ${drawings} PARENT_SCOPE)
endfunction()

# velkarix_icon(<icon> <drawing> <size>...): one icon with images of these sizes.
function(velkarix_icon icon drawing)
    string(REGEX REPLACE "\\.svg$" ".small.svg" small ${drawing})
    if(NOT EXISTS ${small})
        set(small "")
    endif()
    add_custom_command(OUTPUT ${icon}
        COMMAND ${PROJECT_SOURCE_DIR}/tools/make-icon ${drawing} ${icon} ${ARGN}
        DEPENDS ${drawing} ${small} ${PROJECT_SOURCE_DIR}/tools/make-icon
            ${PROJECT_SOURCE_DIR}/resources/sixteen-colours.sed
        VERBATIM)
endfunction()

# velkarix_icons(<variable> SIZES <size>... DRAWINGS <drawing>...): an icon of the same name for each drawing,
# in this folder's build folder; gives their paths.
function(velkarix_icons variable)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SIZES;DRAWINGS")
    set(icons "")
    foreach(drawing IN LISTS arg_DRAWINGS)
        cmake_path(GET drawing STEM name)
        set(icon ${CMAKE_CURRENT_BINARY_DIR}/${name}.ico)
        velkarix_icon(${icon} ${drawing} ${arg_SIZES})
        list(APPEND icons ${icon})
    endforeach()
    set(${variable} ${icons} PARENT_SCOPE)
endfunction()
