# cmake -P JoinMessageSources.cmake <output> <source>...
#
# Joins message-compiler sources. Lines end with CR LF, since the compiler keeps the line breaks of
# a text as they are and a table's texts end with CR LF.

set(joined "")
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(i RANGE 4 ${last})
  file(READ "${CMAKE_ARGV${i}}" source)
  string(REPLACE "\r\n" "\n" source "${source}\n")
  string(REPLACE "\n" "\r\n" source "${source}")
  string(APPEND joined "${source}")
endforeach()
file(WRITE "${CMAKE_ARGV3}" "${joined}")
