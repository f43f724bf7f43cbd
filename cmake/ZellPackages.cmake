# The Debian packages: zellqt is what the board needs, zellqt-simulator what plays the board on any
# machine. `./dev package` makes them; dates in them are SOURCE_DATE_EPOCH, so that the same commit
# gives the same bytes.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Zell maintainers <maintainers@example.com>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_SOURCE_DIR}/dist")
set(CPACK_PACKAGING_INSTALL_PREFIX "/")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL device simulator)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Each component has its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(packaging "${CMAKE_SOURCE_DIR}/device/debian")
set(CPACK_DEBIAN_DEVICE_PACKAGE_NAME zellqt)
set(CPACK_DEBIAN_DEVICE_DESCRIPTION "${PROJECT_DESCRIPTION}
The user interface and data logger of a stand-alone monitor with a touch
screen of 854 x 480: reads the sensors for particles, temperature and
humidity, keeps averages in SQLite and shows a history.")
set(CPACK_DEBIAN_DEVICE_PACKAGE_DEPENDS
    "libqt6sql6-sqlite, qml6-module-qtqml-workerscript, qml6-module-qtquick, systemd, wireless-tools")
set(CPACK_DEBIAN_DEVICE_PACKAGE_RECOMMENDS "fbset, fonts-noto-cjk, fonts-roboto-hinted, udev")
set(CPACK_DEBIAN_DEVICE_PACKAGE_CONTROL_EXTRA
    "${packaging}/conffiles;${packaging}/postinst;${packaging}/prerm;${packaging}/postrm")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_NAME zellqt-simulator)
set(CPACK_DEBIAN_SIMULATOR_DESCRIPTION "Simulated device for the indoor air-quality monitor
Plays sensors, serial line, Wi-Fi scanner, backlight and firmware server for
the program of the package zellqt on a machine that has none of them.")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_DEPENDS "zellqt (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_RECOMMENDS qt6-qpa-plugins)

# zell_install_documents(package component document...): what every package holds about itself.
function(zell_install_documents package component)
    string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
    set(changelog "${CMAKE_BINARY_DIR}/${package}/changelog")
    configure_file("${packaging}/changelog.in" "${changelog}" @ONLY)
    execute_process(COMMAND gzip -9nkf "${changelog}" COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${changelog}.gz" "${packaging}/copyright" ${ARGN}
        DESTINATION usr/share/doc/${package} COMPONENT ${component})
    install(FILES "${packaging}/${package}.lintian-overrides"
        DESTINATION usr/share/lintian/overrides RENAME ${package} COMPONENT ${component})
endfunction()
zell_install_documents(zellqt device "${CMAKE_SOURCE_DIR}/docs/device.md")
zell_install_documents(zellqt-simulator simulator "${CMAKE_SOURCE_DIR}/docs/simulator.md")

# What is packed is built already; the tests are not.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
include(CPack)
