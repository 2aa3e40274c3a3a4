# One interface target sets the language level, the warnings and the floating-point rules for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

add_library(ledgrove_compiler INTERFACE)
target_include_directories(ledgrove_compiler INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(ledgrove_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow
    # Records hold amounts as float and formulas use double: every narrowing must be explicit.
    -Wconversion -Wdouble-promotion
    # A fused multiply-add rounds once instead of twice. Without it, every machine gives the same cents.
    -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 warns about overlapping copies inside std::string (GCC bug 105651).
    target_compile_options(ledgrove_compiler INTERFACE -Wno-restrict)
endif()
# Keeps the build machine's paths out of released programs.
target_compile_options(ledgrove_compiler INTERFACE $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>)
# A module that lacks a function does not link. Without this, the program would end when it loads the module.
target_link_options(ledgrove_compiler INTERFACE $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,MODULE_LIBRARY>:LINKER:-z,defs>)
if(LEDGROVE_WERROR)
    target_compile_options(ledgrove_compiler INTERFACE -Werror)
endif()
if(LEDGROVE_SANITIZE)
    target_compile_options(ledgrove_compiler INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_definitions(ledgrove_compiler INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(ledgrove_compiler INTERFACE -fsanitize=address,undefined)
endif()
if(LEDGROVE_SANITIZE_THREADS)
    target_compile_options(ledgrove_compiler INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_compile_definitions(ledgrove_compiler INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(ledgrove_compiler INTERFACE -fsanitize=thread)
endif()
if(LEDGROVE_FUZZ)
    target_compile_options(ledgrove_compiler INTERFACE -fsanitize=fuzzer-no-link
        -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/tests/fuzz/ignored.txt)
endif()
