# Installs the build into a fresh prefix and checks that everything a desktop needs is in its place.
#   cmake -DBUILD=<build folder> -DPREFIX=<scratch prefix> [-DEXE=<executable suffix>]
#         [-DVALIDATOR=<desktop-file-validate>] -P CheckInstall.cmake
include(${CMAKE_CURRENT_LIST_DIR}/InstalledTree.cmake)

file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX} OUTPUT_QUIET RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "cmake --install failed")
endif()
check_installed_tree(${PREFIX} "${EXE}" "${VALIDATOR}")
