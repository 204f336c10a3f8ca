# --help and --version answer on the terminal with no display and no Qt platform chosen, as on a
# server or in a text console: exit 0 and the text the user asked for.
foreach(option --help --version)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY --unset=QT_QPA_PLATFORM
                --unset=QT_QPA_PLATFORMTHEME ${EXE} ${option}
        RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err TIMEOUT 30)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "quillet ${option} exited with ${status}: ${err}")
    endif()
    if(option STREQUAL "--help")
        set(expected "--user-folder")
    else()
        set(expected "Quillet ${VERSION}")
    endif()
    string(FIND "${out}" "${expected}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "quillet ${option} printed no \"${expected}\":\n${out}")
    endif()
endforeach()
