# Cross build for 64-bit Windows with Debian's mingw-w64 (the POSIX thread model, which std::thread
# needs), the programs run under Wine:
#   cmake -S . -B build-windows -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake -DQUILLET_GUI=OFF
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Static, so that a program runs without mingw's runtime DLLs beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# Debian keeps the 64-bit loader out of PATH. A prefix of the build's own, so that no user's Wine
# setup is touched, and no debugging chatter in the test output.
find_program(QUILLET_WINE NAMES wine64 wine PATHS /usr/lib/wine NO_DEFAULT_PATH)
find_program(QUILLET_WINE NAMES wine64 wine)
if(QUILLET_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_COMMAND} -E env WINEDEBUG=-all WINEPREFIX=${CMAKE_BINARY_DIR}/wine
        ${QUILLET_WINE})
endif()
