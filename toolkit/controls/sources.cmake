# The controls, listed by family in files of their own.
foreach(family basic menus values lists text panels files)
  include(${CMAKE_CURRENT_LIST_DIR}/sources-${family}.cmake OPTIONAL)
endforeach()
