# Compiler settings shared by all targets of this project; consumers of the installed package inherit none of them.

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

find_program(PHIAL_CCACHE ccache)
if(PHIAL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # The base folder makes paths relative, so that every checkout shares the cache.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=time_macros
        ${PHIAL_CCACHE})
endif()

add_library(phial_compiler INTERFACE)
target_compile_options(phial_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Werror -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 with optimisation takes a literal joined with a temporary string for overlapping copies.
    target_compile_options(phial_compiler INTERFACE -Wno-restrict)
endif()
if(PHIAL_UNITY AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # A class that its source file alone knows looks like a header's when that file is compiled with others.
    target_compile_options(phial_compiler INTERFACE -Wno-subobject-linkage)
endif()
if(PHIAL_SANITIZE)
    target_compile_options(phial_compiler INTERFACE
        -fsanitize=${PHIAL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(phial_compiler INTERFACE -fsanitize=${PHIAL_SANITIZE})
endif()
if(PHIAL_FUZZ)
    target_compile_options(phial_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Gives a target of this project its compiler settings. Its sources are compiled some at a time, as one file each
# (PHIAL_UNITY): most of the time goes into headers, which are then read once for all of them. Names in an anonymous
# namespace must therefore differ within a target, not only within a file.
function(phial_settings target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF UNITY_BUILD ${PHIAL_UNITY} UNITY_BUILD_BATCH_SIZE 12)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:phial_compiler>)
endfunction()
