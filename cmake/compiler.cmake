# Warnings and sanitizers for every target of the project, and the shape of a floor.

if(MSVC)
    add_compile_options(/W4 /utf-8)
else()
    add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # g++ 12 sees overlaps in the concatenation of texts that are none (its bug 105651).
        add_compile_options(-Wno-restrict)
    endif()
endif()

if(CELLORA_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(CELLORA_BUILD_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "The fuzzers need clang")
    endif()
    # Tells the fuzzer which code an input reaches, and afterwards us.
    set(coverage -fsanitize=fuzzer-no-link -fprofile-instr-generate -fcoverage-mapping)
    add_compile_options(${coverage})
    add_link_options(${coverage})
endif()

# cellora_add_floor(NAME FLOORS_BELOW...): the library cellora_NAME from the sources of this folder
# and of the rooms in it. Headers are included by their floor ("core/cell.h"), from folders
# that are links to this floor and the floors below only.
function(cellora_add_floor name)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp"
                                                "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
    add_library(cellora_${name} STATIC ${sources})
    set(headers "${CMAKE_BINARY_DIR}/floors/${name}")
    file(MAKE_DIRECTORY "${headers}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${headers}/${name}" SYMBOLIC COPY_ON_ERROR)
    target_include_directories(cellora_${name} PUBLIC "${headers}")
    foreach(below IN LISTS ARGN)
        target_link_libraries(cellora_${name} PUBLIC cellora_${below})
    endforeach()
endfunction()
