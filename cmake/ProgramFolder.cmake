# Copies the data files that the programs need into their folder. It never overwrites a settings file, which may hold a
# user's work.
add_custom_target(ledgrove_program_folder ALL
    COMMAND ${CMAKE_COMMAND}
        -DFROM=${PROJECT_SOURCE_DIR}/data -DTO=${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
        -P ${PROJECT_SOURCE_DIR}/cmake/CopyMissing.cmake
    VERBATIM)
