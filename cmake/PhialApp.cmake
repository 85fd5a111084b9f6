# phial_app(name [CONSOLE] IDENT identifier SOURCES source... [LIBRARIES target...] [DATA folder])
#
# A program of its own on Phial, in a project that has found the package:
#
#   name       the target, and the program's file
#   CONSOLE    without windows: linked to Phial::phial alone, otherwise to Phial::qt
#   IDENT      what the program gives to CONFIG()->IDENT
#   DATA       what CONFIG's DATAAPP is to hold, "data" unless told otherwise; a folder that is not there is none
#
# The program is built into `phial/apps/<identifier>/` of the build folder, beside its data, in a copy by links of the
# installation tree, so that it runs from there. Installed it lies in Phial's tree with a link in `bin/`, so its
# prefix has to be Phial's own: cmake --install build --prefix "${Phial_PREFIX}".
function(phial_app name)
    cmake_parse_arguments(ARG "CONSOLE" "IDENT;DATA" "SOURCES;LIBRARIES" ${ARGN})
    if(NOT ARG_IDENT OR NOT ARG_SOURCES OR ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "phial_app(name [CONSOLE] IDENT identifier SOURCES source... [LIBRARIES target...] "
            "[DATA folder]): IDENT and SOURCES are needed, and \"${ARG_UNPARSED_ARGUMENTS}\" is not known.")
    endif()
    set(tree "${CMAKE_BINARY_DIR}/phial")
    set(place "apps/${ARG_IDENT}")
    file(MAKE_DIRECTORY "${tree}/${place}")
    foreach(entry IN ITEMS QVStart.exe Resources)
        file(CREATE_LINK "${Phial_TREE_DIR}/${entry}" "${tree}/${entry}" SYMBOLIC)
    endforeach()

    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} Phial::phial)
    if(NOT ARG_CONSOLE)
        target_link_libraries(${name} PRIVATE Phial::qt)
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${tree}/${place}")
    install(TARGETS ${name} RUNTIME DESTINATION "${Phial_TREE_INSTALL_DIR}/${place}")
    file(CREATE_LINK "../${Phial_TREE_INSTALL_DIR}/${place}/${name}" "${CMAKE_CURRENT_BINARY_DIR}/bin-${name}" SYMBOLIC)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/bin-${name}" DESTINATION bin RENAME ${name})

    set(data "${CMAKE_CURRENT_SOURCE_DIR}/data")
    if(ARG_DATA)
        cmake_path(ABSOLUTE_PATH ARG_DATA BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" OUTPUT_VARIABLE data)
    endif()
    if(IS_DIRECTORY "${data}")
        file(GLOB_RECURSE files CONFIGURE_DEPENDS "${data}/*")
        set(stamp "${CMAKE_CURRENT_BINARY_DIR}/${name}-data.stamp")
        add_custom_command(OUTPUT "${stamp}" DEPENDS ${files} VERBATIM
            COMMENT "Copying the data of ${name}"
            COMMAND ${CMAKE_COMMAND} -E rm -rf "${tree}/${place}/data"
            COMMAND ${CMAKE_COMMAND} -E copy_directory "${data}" "${tree}/${place}/data"
            COMMAND ${CMAKE_COMMAND} -E touch "${stamp}")
        add_custom_target(${name}_data ALL DEPENDS "${stamp}")
        install(DIRECTORY "${data}/" DESTINATION "${Phial_TREE_INSTALL_DIR}/${place}/data")
    endif()
endfunction()
