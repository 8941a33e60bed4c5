# Cross-build for Windows x64 with MinGW-w64, posix threads.
#
# The libraries come from the folder that the environment variable CORVANE_WIN64_PREFIX names; Qt's
# own tools are those of the machine that builds, which must be of the same version.
if(DEFINED ENV{CORVANE_WIN64_PREFIX})
    set(CORVANE_WIN64_PREFIX "$ENV{CORVANE_WIN64_PREFIX}" CACHE PATH "Libraries for Windows")
else()
    set(CORVANE_WIN64_PREFIX "/opt/corvane-win64" CACHE PATH "Libraries for Windows")
endif()
if(NOT IS_DIRECTORY "${CORVANE_WIN64_PREFIX}")
    message(FATAL_ERROR "No libraries for Windows at ${CORVANE_WIN64_PREFIX}: "
        "name their folder in the environment variable CORVANE_WIN64_PREFIX")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CORVANE_WIN64_PREFIX)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH "${CORVANE_WIN64_PREFIX}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} "${CORVANE_WIN64_PREFIX}/lib/pkgconfig")

# Tests run under Wine where there is one.
find_program(CORVANE_WINE wine)
if(CORVANE_WINE)
    cmake_path(SET corvane_scripts NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../../scripts")
    set(CMAKE_CROSSCOMPILING_EMULATOR
        "${corvane_scripts}/run-in-wine.sh;${CORVANE_WIN64_PREFIX}")
endif()

set(QT_HOST_PATH /usr CACHE PATH "Qt of the machine that builds")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "Its CMake packages")
