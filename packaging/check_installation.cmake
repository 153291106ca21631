# Fails unless an installation holds what the program and the desktop look for.
set(id example.dayvane.Dayvane)
set(expected ${BIN}/dayvane ${DATA}/dayvane/Dayvane.hlp ${DOC}/LICENSE ${DATA}/icons/hicolor/scalable/apps/dayvane.svg)
foreach(size 16 22 24 32 48 64 128 256)
  list(APPEND expected ${DATA}/icons/hicolor/${size}x${size}/apps/dayvane.png)
endforeach()

foreach(file ${expected})
  if(NOT EXISTS ${STAGE}/${file})
    message(SEND_ERROR "not installed: ${file}")
  endif()
endforeach()

# The header of a PNG gives its width and height as four bytes each, from byte 16 on.
foreach(size 16 22 24 32 48 64 128 256)
  file(READ ${STAGE}/${DATA}/icons/hicolor/${size}x${size}/apps/dayvane.png sides OFFSET 16 LIMIT 8 HEX)
  math(EXPR side "${size}" OUTPUT_FORMAT HEXADECIMAL)
  string(REGEX REPLACE "^0x" "00000000" side ${side})
  string(REGEX REPLACE "^.*(........)$" "\\1" side ${side})
  if(NOT sides STREQUAL "${side}${side}")
    message(SEND_ERROR "the icon of ${size} pixels has another size: ${sides}")
  endif()
endforeach()

# The menu entry, the description and the icon must go by one name.
set(entry_file ${STAGE}/${DATA}/applications/${id}.desktop)
file(STRINGS ${entry_file} entry REGEX "^Icon=dayvane$")
file(STRINGS ${STAGE}/${DATA}/metainfo/${id}.metainfo.xml launchable REGEX ">${id}.desktop<")
if(NOT entry OR NOT launchable)
  message(SEND_ERROR "the menu entry, the description and the icon do not find each other")
endif()

# A launcher calls the program by the entry's name, and the bus starts it by its path where it does not run.
file(STRINGS ${entry_file} activatable REGEX "^DBusActivatable=true$")
file(STRINGS ${STAGE}/${DATA}/dbus-1/services/${id}.service service_name REGEX "^Name=${id}$")
file(STRINGS ${STAGE}/${DATA}/dbus-1/services/${id}.service exec REGEX "^Exec=")
if(NOT activatable OR NOT service_name OR NOT exec STREQUAL "Exec=${STAGE}/${BIN}/dayvane")
  message(SEND_ERROR "the bus does not start the program: ${exec}")
endif()

# Searches find the program by the same name, and do not start it.
set(provider ${STAGE}/${DATA}/gnome-shell/search-providers/${id}.search-provider.ini)
set(runner ${STAGE}/${DATA}/krunner/dbusplugins/${id}.desktop)
file(STRINGS ${provider} provider_name REGEX "^BusName=${id}$")
file(STRINGS ${provider} provider_entry REGEX "^DesktopId=${id}.desktop$")
file(STRINGS ${provider} provider_starts_nothing REGEX "^AutoStart=false$")
file(STRINGS ${runner} runner_starts_nothing REGEX "^X-Plasma-DBusRunner-Service=${id}[*]$")
if(NOT provider_name OR NOT provider_entry OR NOT provider_starts_nothing OR NOT runner_starts_nothing)
  message(SEND_ERROR "the desktops' searches do not find the program, or start it")
endif()

# The manual page tells where the help is installed.
file(STRINGS ${STAGE}/${MAN}/man1/dayvane.1 help_path REGEX "Dayvane.hlp$")
string(REPLACE "\\" "" help_path "${help_path}")
string(REPLACE ":" "" help_path "${help_path}")
if(NOT help_path MATCHES "^.I ${STAGE}/${DATA}/dayvane/Dayvane.hlp")
  message(SEND_ERROR "the manual page does not tell where the help is: ${help_path}")
endif()
