# Builds for the board on a Debian whose packages of both machines lie side by side (tools/armhf-root).
# Qt's tools run on the building machine, programs of the board under qemu.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE armhf)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/arm-linux-gnueabihf/cmake)
