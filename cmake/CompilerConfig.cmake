# One interface target carries the language level, the warnings and the floating-point rules, so that every
# target is built alike.
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
    # Amounts are float in records and double in formulas: every narrowing must be a visible step.
    -Wconversion -Wdouble-promotion
    # A fused multiply-add rounds once where two steps round twice; without it every machine gives the same cents.
    -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 warns of overlapping copies inside std::string itself (GCC bug 105651).
    target_compile_options(ledgrove_compiler INTERFACE -Wno-restrict)
endif()
# What users run names no folder of the machine that built it.
target_compile_options(ledgrove_compiler INTERFACE $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>)
if(LEDGROVE_WERROR)
    target_compile_options(ledgrove_compiler INTERFACE -Werror)
endif()
if(LEDGROVE_SANITIZE)
    target_compile_options(ledgrove_compiler INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_definitions(ledgrove_compiler INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(ledgrove_compiler INTERFACE -fsanitize=address,undefined)
endif()
if(LEDGROVE_FUZZ)
    target_compile_options(ledgrove_compiler INTERFACE -fsanitize=fuzzer-no-link
        -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/tests/fuzz/ignored.txt)
endif()
