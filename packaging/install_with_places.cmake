# Runs while the program is installed: the bus starts it by its whole path and the manual page names the folder of its
# data, which only the installation knows.
cmake_path(ABSOLUTE_PATH BIN BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE OUTPUT_VARIABLE bin)
cmake_path(ABSOLUTE_PATH DATA BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE OUTPUT_VARIABLE data)
cmake_path(ABSOLUTE_PATH MAN BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE OUTPUT_VARIABLE man)
set(program "${bin}/dayvane")
# In the page's own language, where a path may end a line behind each slash.
string(REPLACE "-" "\\-" written_data "${data}")
string(REPLACE "/" "/\\:" written_data "${written_data}")

function(install_with_places template target)
  message(STATUS "Installing: $ENV{DESTDIR}${target}")
  configure_file("${template}" "$ENV{DESTDIR}${target}" @ONLY)
  list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${target}")
  set(CMAKE_INSTALL_MANIFEST_FILES "${CMAKE_INSTALL_MANIFEST_FILES}" PARENT_SCOPE)
endfunction()

install_with_places("${SERVICE}" "${data}/dbus-1/services/example.dayvane.Dayvane.service")
install_with_places("${MANUAL_PAGE}" "${man}/man1/dayvane.1")
