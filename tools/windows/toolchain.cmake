# For CMake: programs for Windows, made on Debian by the compiler that has the threads of C++.
#
# LOFTWING_CROSS_ROOT is the folder with what was built for Windows before, if there is one.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

# Libraries and headers are those for Windows alone, programs those of the machine.
set(CMAKE_FIND_ROOT_PATH /usr/${target} ${LOFTWING_CROSS_ROOT})
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LOFTWING_CROSS_ROOT)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
