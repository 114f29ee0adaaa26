# Debian's compiler for 64-bit Windows, the one with POSIX threads. Only the compiler's own tree is
# searched for headers and libraries, so that nothing of the build machine gets into a program.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# A program is one file that needs nothing but what Windows has.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Programs that the build or its tests start run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
