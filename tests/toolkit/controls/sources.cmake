foreach(family basic menus values lists)
  include(${CMAKE_CURRENT_LIST_DIR}/sources-${family}.cmake OPTIONAL)
endforeach()
