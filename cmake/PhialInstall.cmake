# Installs libraries, headers and the CMake package that find_package(Phial) reads.
#
# The package has components, each with its own file of targets, so that a program without windows never asks for
# Qt: core (Phial::phial, Phial::headless; always there), sealing (Phial::sealing), qt_base (Phial::qt_base) and qt
# (Phial::qt).

include(CMakePackageConfigHelpers)
set(PHIAL_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Phial")

# phial_install_component(component target name [target name]...): installs the targets that this build has and
# exports them as Phial::<name>.
function(phial_install_component component)
    set(exported FALSE)
    list(LENGTH ARGN length)
    math(EXPR last "${length} - 1")
    foreach(at RANGE 0 ${last} 2)
        list(SUBLIST ARGN ${at} 2 pair)
        list(GET pair 0 target)
        list(GET pair 1 name)
        if(TARGET ${target})
            set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
            phial_installs(${target})
            install(TARGETS ${target} EXPORT phial_${component} ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
            set(exported TRUE)
        endif()
    endforeach()
    if(exported)
        install(EXPORT phial_${component} FILE PhialTargets-${component}.cmake NAMESPACE Phial::
            DESTINATION "${PHIAL_PACKAGE_DIR}")
    endif()
endfunction()

phial_install_component(core phial phial phial_headless headless)
phial_install_component(sealing phial_sealing sealing)
phial_install_component(qt_base phial_qt_base qt_base)
phial_install_component(qt phial_qt qt phial_qt_sound qt_sound)

set(not_installed)
if(NOT TARGET phial_qt_base)
    list(APPEND not_installed PATTERN qt EXCLUDE)
endif()
if(TARGET phial_sealing)
    install(FILES "${CMAKE_CURRENT_LIST_DIR}/FindSodium.cmake" DESTINATION "${PHIAL_PACKAGE_DIR}")
else()
    list(APPEND not_installed PATTERN sealing EXCLUDE)
endif()
install(DIRECTORY "${CMAKE_SOURCE_DIR}/src/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/phial"
    FILES_MATCHING PATTERN "*.h" ${not_installed})

set(PHIAL_QT_VERSION 6.4)
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/PhialConfig.cmake.in" "${CMAKE_BINARY_DIR}/PhialConfig.cmake"
    INSTALL_DESTINATION "${PHIAL_PACKAGE_DIR}" PATH_VARS PHIAL_TREE_INSTALL_DIR NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/PhialConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_BINARY_DIR}/PhialConfig.cmake" "${CMAKE_BINARY_DIR}/PhialConfigVersion.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/PhialApp.cmake" DESTINATION "${PHIAL_PACKAGE_DIR}")
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" "${CMAKE_SOURCE_DIR}/README.md" "${CMAKE_SOURCE_DIR}/DEVELOPERS.md"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY "${CMAKE_SOURCE_DIR}/docs" "${CMAKE_SOURCE_DIR}/examples" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
