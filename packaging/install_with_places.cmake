# Runs while the program is installed: the bus starts it by its whole path, which only the installation knows.
cmake_path(ABSOLUTE_PATH BIN BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE OUTPUT_VARIABLE bin)
cmake_path(ABSOLUTE_PATH DATA BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE OUTPUT_VARIABLE data)
set(program "${bin}/dayvane")
set(service "${data}/dbus-1/services/example.dayvane.Dayvane.service")
message(STATUS "Installing: $ENV{DESTDIR}${service}")
configure_file("${TEMPLATES}/example.dayvane.Dayvane.service.in" "$ENV{DESTDIR}${service}" @ONLY)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${service}")
