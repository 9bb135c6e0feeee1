# The Debian package that `cmake --build DIR --target package` makes: tarvel_<version>_<arch>.deb.
set(TARVEL_PACKAGE_MAINTAINER "The Tarvel developers <tarvel@users.noreply.github.com>" CACHE STRING
    "The Debian package's Maintainer field")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarvel)
set(CPACK_PACKAGE_VENDOR "The Tarvel developers")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Without this the package's control files take the permissions of the build machine's umask.
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${TARVEL_PACKAGE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TARVEL_HOMEPAGE_URL})
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt loads its SQLite driver as a plugin when the history opens, so no linked library names it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite")
# The X11 and offscreen platform plugins come with libqt6gui6; Wayland's own is a package apart.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION [=[system monitor with live pictures in the tray or panel
Tarvel shows the state of the machine as small live pictures, one status item
per module: CPU, Memory, Network, Disk, Volume, Temp, Fan and VNC, beside the
Tarvel item itself. Each item opens a drop-down menu with detailed figures,
graphs and shortcuts: processor load per core and the busiest processes,
memory and swap, network and disk rates, free space, temperatures and fan
speeds from the hardware monitoring chips, and a list of screen-sharing hosts.
.
Where no system tray runs, the items sit in a bar window at the top of the
screen; without a display, they are printed as live text lines.]=])

include(CPack)
