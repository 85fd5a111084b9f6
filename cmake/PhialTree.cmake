# The installation tree that programs look for at start: assembled in the build folder, installed below the prefix.
set(PHIAL_TREE "${CMAKE_BINARY_DIR}/tree" CACHE INTERNAL "Installation tree in the build folder")
set(PHIAL_TREE_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/phial" CACHE INTERNAL "Installation tree below the prefix")

# Building the target tree brings the whole tree up to date; every phial_tree_folder adds its share.
add_custom_target(tree ALL)

# phial_tree_folder(source place): keeps the folder `place` of the tree equal to the folder `source` (relative to
# the current source folder) and installs it. A file that leaves `source` leaves the tree as well.
function(phial_tree_folder source place)
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    string(MAKE_C_IDENTIFIER "tree_${place}" name)
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}.list")
    set(stamp "${CMAKE_CURRENT_BINARY_DIR}/${name}.stamp")

    file(GLOB_RECURSE files CONFIGURE_DEPENDS "${source}/*")
    list(JOIN files "\n" lines)
    file(CONFIGURE OUTPUT "${list}" CONTENT "${lines}\n" @ONLY)
    add_custom_command(OUTPUT "${stamp}" DEPENDS ${files} "${list}" VERBATIM
        COMMENT "Copying ${place} into the installation tree"
        COMMAND ${CMAKE_COMMAND} -E rm -rf "${PHIAL_TREE}/${place}"
        COMMAND ${CMAKE_COMMAND} -E copy_directory "${source}" "${PHIAL_TREE}/${place}"
        COMMAND ${CMAKE_COMMAND} -E touch "${stamp}")
    add_custom_target(${name} DEPENDS "${stamp}")
    add_dependencies(tree ${name})
    install(DIRECTORY "${source}/" DESTINATION "${PHIAL_TREE_INSTALL_DIR}/${place}")
endfunction()
