# Looks at the Debian package (tools/make-package) the way a user's system will: lintian's verdict,
# the files where the desktop looks for them, and the unpacked program answering --version.
#   cmake -DDEB=<quillet_<version>_amd64.deb> -P CheckPackage.cmake
include(${CMAKE_CURRENT_LIST_DIR}/InstalledTree.cmake)

# Runs a command that must succeed; its standard output is left in `out`.
function(run what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE failed OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(failed)
        message(FATAL_ERROR "${what} failed:\n${out}${err}")
    endif()
    set(out "${out}" PARENT_SCOPE)
endfunction()

get_filename_component(name ${DEB} NAME)
set(deb ${DEB})

# Errors fail; warnings and notes are printed for whoever reads the log.
execute_process(COMMAND lintian --fail-on error ${deb} RESULT_VARIABLE errors OUTPUT_VARIABLE out
    ERROR_VARIABLE out)
message(STATUS "lintian: ${out}")
if(errors)
    message(FATAL_ERROR "lintian finds errors in ${name}")
endif()

# Its dependencies are packages this system's archive has.
run("Resolving the dependencies" apt-get install --simulate --no-install-recommends ${deb})

get_filename_component(folder ${deb} DIRECTORY)
set(root ${folder}/package-check)
file(REMOVE_RECURSE ${root})
run("Unpacking" dpkg-deb -x ${deb} ${root})
find_program(VALIDATOR desktop-file-validate)
check_installed_tree(${root}/usr "" "${VALIDATOR}")
run("appstreamcli" appstreamcli validate-tree --no-net ${root})

# The program from the package says the version the package has; offscreen, so it needs no display.
run("Reading the version" dpkg-deb -f ${deb} Version)
string(STRIP "${out}" version)
run("quillet --version" ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${root}/usr/bin/quillet --version)
string(STRIP "${out}" said)
if(NOT said STREQUAL "Quillet ${version}")
    message(FATAL_ERROR "The packaged quillet --version says \"${said}\", the package is ${version}")
endif()
message(STATUS "The package's quillet --version says: ${said}")
