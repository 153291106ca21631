# dayvane_verify_headers(target header...) lets the target all_verify_interface_header_sets compile each header alone.
# A header with a .cpp of its own is left out: that file includes it first, and so compiles it alone already.
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

function(dayvane_verify_headers target)
  set(alone)
  foreach(header IN LISTS ARGN)
    string(REGEX REPLACE "\\.h$" ".cpp" own_source ${header})
    if(NOT EXISTS ${own_source})
      list(APPEND alone ${header})
    endif()
  endforeach()
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${alone})
endfunction()
