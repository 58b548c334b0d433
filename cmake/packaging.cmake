# Installing and packaging. Included by the top CMakeLists.txt once every target exists.

include(GNUInstallDirs)
set(packaging "${PROJECT_SOURCE_DIR}/packaging")

if(WIN32)
    configure_file("${packaging}/windows/cellora.rc.in" cellora.rc @ONLY)
    configure_file("${packaging}/windows/cellora.manifest.in" cellora.manifest @ONLY)
    set_source_files_properties(cellora.rc TARGET_DIRECTORY cellora PROPERTIES OBJECT_DEPENDS
        "${CMAKE_CURRENT_BINARY_DIR}/cellora.manifest;${packaging}/windows/cellora.ico")
    target_sources(cellora PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/cellora.rc")
    if(MSVC)
        target_link_options(cellora PRIVATE /MANIFEST:NO) # The resources hold one.
    endif()
elseif(APPLE)
    set(icns "${packaging}/macos/cellora.icns")
    target_sources(cellora PRIVATE "${icns}")
    set_source_files_properties("${icns}" PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
    set_target_properties(cellora PROPERTIES
        MACOSX_BUNDLE ON
        MACOSX_BUNDLE_BUNDLE_NAME Cellora
        MACOSX_BUNDLE_GUI_IDENTIFIER example.cellora.Cellora
        MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}"
        MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
        MACOSX_BUNDLE_ICON_FILE cellora.icns)
endif()

if(WIN32 OR APPLE)
    install(TARGETS cellora RUNTIME DESTINATION . BUNDLE DESTINATION .)
    if(MINGW)
        include(cmake/packaging_windows.cmake)
    endif()
    return() # Elsewhere windeployqt and macdeployqt make the rest.
endif()

include(cmake/release_notes.cmake)

# What distributions expect of a program: checked libc calls and stack frames, read-only relocations.
foreach(target IN ITEMS cellora_core cellora_store cellora_rules cellora_ui cellora)
    target_compile_options(${target} PRIVATE
        "$<$<CONFIG:Release,RelWithDebInfo>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endforeach()
target_link_options(cellora PRIVATE "$<$<CONFIG:Release,RelWithDebInfo>:LINKER:-z,relro,-z,now>")

install(TARGETS cellora RUNTIME DESTINATION games)
install(FILES assets/cl.ini DESTINATION "${CMAKE_INSTALL_DATADIR}/cellora")
install(FILES "${packaging}/cellora.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
set(made "${CMAKE_CURRENT_BINARY_DIR}/packaging")
foreach(file IN ITEMS cellora.6 changelog.Debian copyright example.cellora.Cellora.metainfo.xml)
    configure_file("${packaging}/${file}.in" "${made}/${file}" @ONLY)
endforeach()
install(FILES "${made}/example.cellora.Cellora.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${packaging}/cellora-mime.xml" RENAME cellora.xml
        DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
install(FILES "${made}/copyright" DESTINATION "${CMAKE_INSTALL_DOCDIR}")

set(hicolor "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
set(game_icon application-x-cellora-game)
foreach(size IN ITEMS 48x48 128x128)
    install(FILES "${packaging}/icons/${size}/cellora.png" DESTINATION "${hicolor}/${size}/apps")
    install(FILES "${packaging}/icons/${size}/${game_icon}.png"
            DESTINATION "${hicolor}/${size}/mimetypes")
endforeach()
install(FILES assets/pictures/cellora.svg DESTINATION "${hicolor}/scalable/apps")
install(FILES "${packaging}/icons/${game_icon}.svg" DESTINATION "${hicolor}/scalable/mimetypes")

# cellora_install_compressed(FILE FOLDER): installs FILE.gz, the same bytes from every build.
find_program(CELLORA_GZIP gzip REQUIRED)
function(cellora_install_compressed file folder)
    cmake_path(GET file FILENAME name)
    set(compressed "${made}/${name}.gz")
    execute_process(COMMAND "${CELLORA_GZIP}" -9nc "${file}" OUTPUT_FILE "${compressed}"
                    COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${compressed}" DESTINATION "${folder}")
endfunction()
cellora_install_compressed("${made}/cellora.6" "${CMAKE_INSTALL_MANDIR}/man6")
cellora_install_compressed("${made}/changelog.Debian" "${CMAKE_INSTALL_DOCDIR}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME cellora)
set(CPACK_PACKAGE_CONTACT "Cellora maintainers <maintainers@cellora.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "number-placement game for one player")
set(CPACK_PACKAGE_DESCRIPTION
    "Cellora is a number-placement game: fill the 9 x 9 grid so that every row,
every column and every region holds each digit from 1 to 9 exactly once.
It makes new puzzles at many levels, takes notes in the cells, marks wrong
entries, helps where the player is stuck, saves and prints games, and keeps
the best times of each level in a hall of fame.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.cellora.example/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# Symbols are taken out; a build that has those for debugging gives them a package of their own.
if(CMAKE_BUILD_TYPE STREQUAL "RelWithDebInfo")
    set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
else()
    set(CPACK_STRIP_FILES ON)
endif()
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation2, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
