# Builds for 64-bit Windows with MinGW. The threads model is named outright: the other one has no std::mutex.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# The program runs without a library of the compiler's beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
# Of those, only what is used goes into the program.
set(CMAKE_CXX_FLAGS_INIT "-ffunction-sections -fdata-sections")
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Tests run under Wine, in a folder of their own.
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/python3 -B ${CMAKE_CURRENT_LIST_DIR}/../tools/display/wine.py)
