# Installs libraries, headers and the CMake package that find_package(Phial) reads.
