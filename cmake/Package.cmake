# The Debian package: `cpack -G DEB` in a Release build gives quillet_<version>_amd64.deb, holding what
# cmake/Install.cmake installs, under /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillet)
set(CPACK_PACKAGE_VENDOR "The Quillet developers")
set(CPACK_PACKAGE_CONTACT "Seed 130c84dc maintainers <maintainers@users.noreply.c-seed-130c84dc.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Folders of the package are 0755 whatever the umask of the machine that built it.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries come from dpkg-shlibdeps; the fonts it cannot see: the windows ask for Arial, which
# fontconfig maps onto Liberation Sans, drawn to the same widths, so the laid-out labels fit.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "load planner for the airliners of a flight simulator
Quillet plans the load of the commuter aircraft and airliners of Flight
Simulator 2000 seat by seat, hold by hold and container by container. It
shows the weights against the type's limits and the balance along and across
the fuselage, and writes the load into the aircraft's aircraft.cfg, so that
the simulator flies the aircraft with it.")
include(CPack)
