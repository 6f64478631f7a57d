# Builds for Windows with Debian's MinGW-w64, against the libraries that `./dev windows` has built once.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# Threads of the standard library need the posix variant.
set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

if(DEFINED ENV{XDG_CACHE_HOME})
  set(TAVIMOR_WINDOWS_FOLDER $ENV{XDG_CACHE_HOME}/tavimor-windows)
else()
  set(TAVIMOR_WINDOWS_FOLDER $ENV{HOME}/.cache/tavimor-windows)
endif()

# Libraries, headers and packages come from there alone: those of the host are for Linux.
set(CMAKE_FIND_ROOT_PATH ${TAVIMOR_WINDOWS_FOLDER}/sysroot /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${TAVIMOR_WINDOWS_FOLDER}/sysroot/lib/pkgconfig)

# The tools of Qt that run while it is used are those of the host, which has the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake)

# Tests run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../packaging/windows/wine.sh)
