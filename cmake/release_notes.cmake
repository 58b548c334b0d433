# What packages say of this release, from the newest entry of CHANGELOG.md and from LICENSE. Sets
# RELEASE_DATE, RELEASE_DATE_DEBIAN, RELEASE_METAINFO, RELEASE_DEBIAN and LICENSE_INDENTED.

file(READ "${PROJECT_SOURCE_DIR}/CHANGELOG.md" changelog)
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" license)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
             "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${PROJECT_SOURCE_DIR}/LICENSE")

if(NOT changelog MATCHES "^# Changelog\n\n## ${PROJECT_VERSION} \\(([0-9-]+)\\)\n\n(.*)")
    message(FATAL_ERROR "CHANGELOG.md does not begin with version ${PROJECT_VERSION} and its date")
endif()
set(RELEASE_DATE "${CMAKE_MATCH_1}")
string(REGEX REPLACE "\n## .*" "" notes "${CMAKE_MATCH_2}")
string(REPLACE "`" "" notes "${notes}")
string(STRIP "${notes}" notes)

# Debian wants the day's name and noon; CMake formats the current time only.
execute_process(COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=C date -u -d "${RELEASE_DATE} 12:00" "+%a, %d %b %Y %H:%M:%S +0000"
                OUTPUT_VARIABLE RELEASE_DATE_DEBIAN OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)

string(REGEX REPLACE "\n  +" " " joined "${notes}") # one line each
string(REPLACE "&" "&amp;" joined "${joined}")
string(REPLACE "<" "&lt;" joined "${joined}")
string(REGEX REPLACE "(^|\n)- ([^\n]+)" "\\1          <li>\\2</li>" RELEASE_METAINFO "${joined}")
string(REGEX REPLACE "(^|\n)- " "\\1  * " RELEASE_DEBIAN "${notes}")
string(REPLACE "\n  " "\n    " RELEASE_DEBIAN "${RELEASE_DEBIAN}")
string(REPLACE "\n    * " "\n  * " RELEASE_DEBIAN "${RELEASE_DEBIAN}")

string(REGEX REPLACE "^Copyright[^\n]*\n\n" "" license "${license}")
string(STRIP "${license}" license)
string(REPLACE "\n\n" "\n.\n" license "${license}")
string(REPLACE "\n" "\n " LICENSE_INDENTED " ${license}")
