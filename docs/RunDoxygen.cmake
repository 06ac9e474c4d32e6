# Runs Doxygen, then fails when a public class or struct has no summary or when
# Doxygen warned of anything but an undocumented member (members may go without).
# Doxygen itself passes over classes with no members, so the classes are checked
# in its XML output, where each has a file of its own.
# cmake -DDOXYGEN=... -DDOXYFILE=... -DOUTPUT=<Doxygen's output folder> -P RunDoxygen.cmake
set(warnings "${OUTPUT}/warnings.log")
file(REMOVE_RECURSE "${OUTPUT}/xml" "${warnings}")
execute_process(COMMAND "${DOXYGEN}" "${DOXYFILE}" RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "doxygen failed (${status})")
endif()

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
      message(NOTICE "${line}")
      math(EXPR count "${count} + 1")
    endif()
  endforeach()
endif()
if(count GREATER 0)
  message(FATAL_ERROR "${count} problems in the API reference")
endif()
