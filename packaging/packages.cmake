# What CPack makes packages of, for ./package: a .deb and an .rpm of the same files. Preset "package" is the build.
set(CPACK_GENERATOR DEB RPM)
set(CPACK_PACKAGE_NAME dayvane)
set(CPACK_PACKAGE_VENDOR "The Dayvane authors")
set(CPACK_PACKAGE_CONTACT "The Dayvane authors <authors@dayvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "day-by-day record of the documents you open")
set(CPACK_PACKAGE_DESCRIPTION "Dayvane notes every document that is opened under the day of the opening, and
answers two questions: what was worked on that day, and which documents are
opened again and again?

A calendar and a tree show the days, a list the documents of a day; those of
several days are listed as favorites. The record is plain folders of links in
your own home. The documents themselves are never touched.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_RELOCATABLE OFF) # the bus starts the program by its whole path
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/finish_package.cmake)
set(CPACK_VERBATIM_VARIABLES ON)

# What runs the commands of the menu entry, what names types and draws icons, and a bus where there is none.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libglib2.0-bin, qt6-wayland, shared-mime-info, \
adwaita-icon-theme | breeze-icon-theme, default-dbus-session-bus | dbus-session-bus")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${DAYVANE_HOME_PAGE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

# rpm finds the libraries itself. Folders that many packages share belong to none of them.
set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_LICENSE MIT)
set(CPACK_RPM_PACKAGE_GROUP Applications/Productivity)
set(CPACK_RPM_PACKAGE_URL ${DAYVANE_HOME_PAGE})
set(CPACK_RPM_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_RPM_PACKAGE_AUTOREQ ON)
set(CPACK_RPM_COMPRESSION_TYPE xz)
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION /usr/share/applications /usr/share/metainfo /usr/share/man
  /usr/share/man/man1 /usr/share/doc /usr/share/icons /usr/share/icons/hicolor /usr/share/dbus-1
  /usr/share/dbus-1/services /usr/share/gnome-shell /usr/share/gnome-shell/search-providers /usr/share/krunner
  /usr/share/krunner/dbusplugins)
foreach(size 16x16 22x22 24x24 32x32 48x48 64x64 128x128 256x256 scalable)
  list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION /usr/share/icons/hicolor/${size}
    /usr/share/icons/hicolor/${size}/apps)
endforeach()
# The dates and the machine in the header are those of the sources.
set(CPACK_RPM_SPEC_MORE_DEFINE "Recommends: qt6-qtwayland
Recommends: shared-mime-info
Recommends: hicolor-icon-theme
Recommends: (adwaita-icon-theme or breeze-icon-theme)
%define use_source_date_epoch_as_buildtime 1
%define clamp_mtime_to_source_date_epoch 1
%define _buildhost dayvane.example
%define _build_id_links none")

include(CPack)
