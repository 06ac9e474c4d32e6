# Doxygen reads `///` as documentation and ignores `//`. An indented `//` comment
# is about a member (or a nested type) of the class around it, so it is read as
# documentation; a comment at the left margin stays plain, so a class, which sits
# there, is documented only by its own `///` summary.
s#^([[:space:]]+)//( |$)#\1///\2#
