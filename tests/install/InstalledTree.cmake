# What every installed tree of Quillet holds, wherever it came from (cmake --install, the package):
#   check_installed_tree(<root> <executable suffix> <desktop-file-validate or empty>)
# where <root> is the prefix (/usr for the package).
function(check_installed_tree root exe validator)
    set(expected
        bin/quillet${exe}
        share/applications/quillet.desktop
        share/metainfo/example.c_seed_130c84dc.quillet.metainfo.xml
        share/man/man1/quillet.1.gz
        share/doc/quillet/copyright
        share/icons/hicolor/scalable/apps/quillet.svg)
    foreach(size 16 24 32 48 64 128 256)
        list(APPEND expected share/icons/hicolor/${size}x${size}/apps/quillet.png)
    endforeach()
    # The picture of every type, under the names the program looks for.
    foreach(picture beech emb120 dhc8 crj200 DC-10-30F B727-212ADV B737-200ADV B737-300 B757-200 B757-200F
            B767-300ER DC-8-71F DC-9-30F MD-90-30)
        list(APPEND expected share/quillet/pictures/${picture}.gif)
    endforeach()

    set(missing)
    foreach(file ${expected})
        if(NOT EXISTS ${root}/${file})
            list(APPEND missing ${file})
        endif()
    endforeach()
    if(missing)
        message(FATAL_ERROR "Not installed: ${missing}")
    endif()

    # The entry starts the installed program in the user's own folder, with the installed icon.
    file(STRINGS ${root}/share/applications/quillet.desktop exec REGEX "^Exec=")
    file(STRINGS ${root}/share/applications/quillet.desktop icon REGEX "^Icon=")
    if(NOT exec STREQUAL "Exec=quillet --user-folder" OR NOT icon STREQUAL "Icon=quillet")
        message(FATAL_ERROR "The desktop entry says ${exec} and ${icon}")
    endif()

    if(validator)
        execute_process(COMMAND ${validator} ${root}/share/applications/quillet.desktop RESULT_VARIABLE invalid)
        if(invalid)
            message(FATAL_ERROR "desktop-file-validate rejects the installed entry")
        endif()
    endif()
endfunction()
