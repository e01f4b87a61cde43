# Builds for Windows with the packages of a Debian system; programs run under wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(compiler x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${compiler}-gcc-posix)
set(CMAKE_CXX_COMPILER ${compiler}-g++-posix)
set(CMAKE_RC_COMPILER ${compiler}-windres)

# The libraries that no package has for Windows, as packaging/windows/libraries builds them.
set(KOVARIS_WINDOWS_PREFIX "$ENV{HOME}/.cache/kovaris/windows/prefix" CACHE PATH "Libraries built for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KOVARIS_WINDOWS_PREFIX)
set(CMAKE_FIND_ROOT_PATH ${KOVARIS_WINDOWS_PREFIX} ${KOVARIS_WINDOWS_PREFIX}/qt /usr/${compiler})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run-under-wine)
