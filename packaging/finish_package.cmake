# Run by CPack over the tree of a package before it is packed: the manual page, licence and changelogs in the form that
# the system wants, and one date on every file, so that the same sources make the same package.
set(root ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
set(doc ${root}/doc/dayvane)
set(packaging ${CMAKE_CURRENT_LIST_DIR})
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  message(FATAL_ERROR "SOURCE_DATE_EPOCH is not set; ./package sets it")
endif()

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(gzip -9n ${root}/man/man1/dayvane.1)
if(CPACK_GENERATOR STREQUAL DEB)
  file(REMOVE ${doc}/LICENSE) # its text stands in the copyright
  file(COPY ${packaging}/debian/copyright DESTINATION ${doc})
  file(COPY ${packaging}/debian/lintian-overrides/ DESTINATION ${root}/lintian/overrides)
  execute_process(COMMAND python3 ${packaging}/../scripts/changelog.py debian ${CPACK_PACKAGE_CONTACT}
    OUTPUT_FILE ${doc}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)
  configure_file(${packaging}/../CHANGELOG.md ${doc}/changelog COPYONLY)
  run(gzip -9n ${doc}/changelog.Debian ${doc}/changelog)
else()
  file(COPY ${packaging}/../CHANGELOG.md DESTINATION ${doc})
endif()

run(find ${CPACK_TEMPORARY_DIRECTORY} -type d -exec chmod 755 {} +)
run(find ${CPACK_TEMPORARY_DIRECTORY} -type f -not -path */usr/bin/* -exec chmod 644 {} +)
run(find ${CPACK_TEMPORARY_DIRECTORY} -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +)
