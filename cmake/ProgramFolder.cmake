# What a program needs beside it is copied from data/ where it is missing; a settings file that is there is a user's
# work and is never written over.
add_custom_target(ledgrove_program_folder ALL
    COMMAND ${CMAKE_COMMAND}
        -DFROM=${PROJECT_SOURCE_DIR}/data -DTO=${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
        -P ${PROJECT_SOURCE_DIR}/cmake/CopyMissing.cmake
    VERBATIM)
