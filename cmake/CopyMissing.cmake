# Copies the files of the folder FROM that the folder TO does not have. The help is always replaced, because users do not
# edit it.
file(GLOB_RECURSE names RELATIVE "${FROM}" "${FROM}/*")
foreach(name IN LISTS names)
    # After an interrupted save the settings are in the temporary file: a fresh copy would hide them.
    if(name STREQUAL "Ledgrove.ini" AND EXISTS "${TO}/Pennaro2.INI")
        continue()
    endif()
    if(NOT EXISTS "${TO}/${name}" OR name STREQUAL "LEDGROVE.HLP")
        get_filename_component(folder "${TO}/${name}" DIRECTORY)
        file(COPY "${FROM}/${name}" DESTINATION "${folder}")
    endif()
endforeach()
