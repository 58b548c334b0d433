# Builds for 64-bit Windows on Debian, with g++-mingw-w64-x86-64-posix and a Qt made with MinGW. That
# Qt is $CELLORA_WINDOWS_QT, a folder that holds lib/cmake/Qt6 or an archive with such a folder "qt";
# without the variable, the archive that lies beside this source tree.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(compiler x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${compiler}-gcc-posix)
set(CMAKE_CXX_COMPILER ${compiler}-g++-posix)
set(CMAKE_RC_COMPILER ${compiler}-windres)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH source)
set(unpacked "${source}/build/windows-qt")
set(kit "$ENV{CELLORA_WINDOWS_QT}")
if(NOT kit)
    file(GLOB kit "${source}/../shared/windows/qt-*-mingw64.tar.xz")
endif()
cmake_path(ABSOLUTE_PATH kit BASE_DIRECTORY "${source}")
if(NOT EXISTS "${kit}/lib/cmake/Qt6")
    if(NOT EXISTS "${unpacked}/qt/lib/cmake/Qt6")
        if(NOT EXISTS "${kit}")
            message(FATAL_ERROR "There is no Qt for Windows: set CELLORA_WINDOWS_QT to the folder of "
                                "one made with MinGW, such as the Qt installer's \"mingw_64\"")
        endif()
        file(ARCHIVE_EXTRACT INPUT "${kit}" DESTINATION "${unpacked}")
    endif()
    set(kit "${unpacked}/qt")
endif()

set(CMAKE_PREFIX_PATH "${kit}")
set(CMAKE_FIND_ROOT_PATH /usr/${compiler} "${kit}" "${source}/build/windows-googletest")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Tools that run while building come from this system's Qt of the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

# The tests are programs of Windows too and cannot be asked for their names while building.
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
