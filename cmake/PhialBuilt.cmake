# Installing says what has not been built before it copies anything. Included first, since what is installed runs in the
# order in which it is declared; targets are named later, by phial_installs.
add_custom_target(phial_installed)
install(CODE [[
    foreach(file IN ITEMS $<TARGET_GENEX_EVAL:phial_installed,$<TARGET_PROPERTY:phial_installed,PHIAL_FILES>>)
        if(NOT EXISTS "${file}")
            message(FATAL_ERROR "Nothing is installed, since ${file} has not been built. Build everything first: "
                "cmake --build \"$<TARGET_PROPERTY:phial_installed,BINARY_DIR>\"")
        endif()
    endforeach()
]])

# phial_installs(target...): these are installed.
function(phial_installs)
    foreach(target IN LISTS ARGN)
        set_property(TARGET phial_installed APPEND PROPERTY PHIAL_FILES "$<TARGET_FILE:${target}>")
    endforeach()
endfunction()
