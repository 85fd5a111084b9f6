# The installation tree that programs look for at start: assembled in the build folder, installed below the prefix.
set(PHIAL_TREE "${CMAKE_BINARY_DIR}/tree" CACHE INTERNAL "Installation tree in the build folder")
set(PHIAL_TREE_INSTALL_DIR "${CMAKE_INSTALL_DATADIR}/phial" CACHE INTERNAL "Installation tree below the prefix")
