# Every folder of a library lists its own files in a sources.cmake, which appends
# them to a list. add_folder_sources(LIST ROOT [OPTIONAL] FOLDER...) reads the
# sources.cmake of each folder named, with paths relative to ROOT. A named folder
# without one stops the configuration (OPTIONAL lets it have none, as a folder of
# tests may), and so does a folder under ROOT that has one but is not named.
function(add_folder_sources list root)
  cmake_parse_arguments(PARSE_ARGV 2 arg "OPTIONAL" "" "")
  set(folders ${arg_UNPARSED_ARGUMENTS})
  file(GLOB present RELATIVE ${root} CONFIGURE_DEPENDS ${root}/*/sources.cmake)
  foreach(file IN LISTS present)
    get_filename_component(folder ${file} DIRECTORY)
    if(NOT folder IN_LIST folders)
      message(FATAL_ERROR "${root}/${folder} lists sources but is not among the folders: ${folders}")
    endif()
  endforeach()
  foreach(folder IN LISTS folders)
    if(EXISTS ${root}/${folder}/sources.cmake)
      include(${root}/${folder}/sources.cmake)
    elseif(NOT arg_OPTIONAL)
      message(FATAL_ERROR "${root}/${folder} has no sources.cmake")
    endif()
  endforeach()
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()
