# What a Windows player downloads, made on Debian: an archive that runs where it is unpacked, and an
# installer for the current user. Included by packaging.cmake.

find_program(CELLORA_STRIP x86_64-w64-mingw32-strip REQUIRED)

# The toolkit, the one plugin that the program needs, and the compiler's libraries without their
# debugging symbols.
foreach(module IN ITEMS Core Gui Widgets PrintSupport Svg)
    install(FILES $<TARGET_FILE:Qt6::${module}> DESTINATION .)
endforeach()
install(FILES $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin> DESTINATION platforms)
foreach(library IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}
                    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(stripped "${CMAKE_CURRENT_BINARY_DIR}/packaging/${library}")
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/packaging")
    execute_process(COMMAND "${CELLORA_STRIP}" --strip-unneeded -o "${stripped}" "${file}"
                    COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${stripped}" DESTINATION .)
endforeach()

# The licence, and those of the libraries as Debian states them.
install(FILES LICENSE RENAME LICENSE.txt DESTINATION .)
configure_file("${packaging}/windows/NOTICES.txt.in" packaging/NOTICES.txt @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/packaging/NOTICES.txt" DESTINATION licenses)
foreach(licence IN ITEMS LGPL-3 GPL-3 GPL-2)
    install(FILES /usr/share/common-licenses/${licence} RENAME ${licence}.txt DESTINATION licenses)
endforeach()
set(doc /usr/share/doc)
install(FILES ${doc}/libqt6core6/copyright RENAME Qt.txt DESTINATION licenses)
install(FILES ${doc}/libqt6svg6/copyright RENAME QtSvg.txt DESTINATION licenses)
install(FILES ${doc}/gcc-mingw-w64-x86-64-posix-runtime/copyright RENAME GCC.txt
        DESTINATION licenses)
install(FILES ${doc}/mingw-w64-x86-64-dev/copyright RENAME MinGW-w64.txt DESTINATION licenses)

set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PACKAGE_NAME cellora)
set(CPACK_PACKAGE_VENDOR Cellora)
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.cellora.example/")
set(CPACK_PACKAGE_FILE_NAME "cellora-${PROJECT_VERSION}-win64")
set(CPACK_STRIP_FILES ON)
# The installer's script, in place of CMake's, which asks for an administrator.
set(CPACK_MODULE_PATH "${packaging}/windows")
set(CPACK_NSIS_INSTALLER_ICON "${packaging}/windows/cellora.ico")
include(CPack)
