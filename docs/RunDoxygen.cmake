# Makes the API reference and checks it. It fails when a public class or struct
# has no summary, or when Doxygen warned of anything but an undocumented member
# (members may go without).
# cmake -DDOXYGEN=... -DDOXYFILE=... -DSOURCE=<the tree> -DOUTPUT=<Doxygen's output folder> -P RunDoxygen.cmake
set(headers "${OUTPUT}/headers")
set(warnings "${OUTPUT}/warnings.log")
file(REMOVE_RECURSE "${headers}" "${OUTPUT}/xml" "${warnings}")

# Doxygen reads the headers from copies in which an indented `//` comment, which is
# about a member (or a nested type) of the class around it, is `///` documentation.
# A comment at the left margin stays plain, so a class is documented only by its
# own `///` summary. Replacing twice reaches comment lines that follow an empty one.
file(GLOB_RECURSE names RELATIVE "${SOURCE}" "${SOURCE}/toolkit/*.h" "${SOURCE}/mosaic/*.h")
foreach(name IN LISTS names)
  file(READ "${SOURCE}/${name}" text)
  string(REGEX REPLACE "\n([ \t]+)//( |\n)" "\n\\1///\\2" text "${text}")
  string(REGEX REPLACE "\n([ \t]+)//( |\n)" "\n\\1///\\2" text "${text}")
  file(WRITE "${headers}/${name}" "${text}")
endforeach()

execute_process(COMMAND "${DOXYGEN}" "${DOXYFILE}" RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "doxygen failed (${status})")
endif()

# Doxygen warns of no class without members, so every class is looked at in the
# XML output, where each has a file of its own; private nested types need nothing.
set(count 0)
file(GLOB compounds "${OUTPUT}/xml/class*.xml" "${OUTPUT}/xml/struct*.xml" "${OUTPUT}/xml/union*.xml")
foreach(xml IN LISTS compounds)
  file(READ "${xml}" text)
  if(text MATCHES "<compounddef [^>]*prot=\"private\"")
    continue()
  endif()
  # The compound's own descriptions are the ones indented by four spaces; its members' are deeper.
  if(text MATCHES "\n    <briefdescription>[ \n]*</briefdescription>[ \n]*<detaileddescription>[ \n]*</detaileddescription>")
    string(REGEX MATCH "<compoundname>([^<]*)</compoundname>" _ "${text}")
    set(name "${CMAKE_MATCH_1}")
    string(REGEX MATCH "\n    <location file=\"([^\"]*)\" line=\"([0-9]*)\"" _ "${text}")
    message(NOTICE "${CMAKE_MATCH_1}:${CMAKE_MATCH_2}: ${name} has no /// summary")
    math(EXPR count "${count} + 1")
  endif()
endforeach()

if(EXISTS "${warnings}")
  file(STRINGS "${warnings}" lines)
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "warning: (Member|Compound) .* is not documented\\.$")
      string(REPLACE "${headers}/" "" line "${line}")
      message(NOTICE "${line}")
      math(EXPR count "${count} + 1")
    endif()
  endforeach()
endif()
if(count GREATER 0)
  message(FATAL_ERROR "${count} problems in the API reference")
endif()
