# cmake "-DFILES=<.ts file>..." -P ListUntranslated.cmake
#
# Lists how many texts of the programs each language lacks, which are shown in English.

cmake_minimum_required(VERSION 3.25)

string(REPLACE " " ";" FILES "${FILES}")
set(missing "")
foreach(file IN LISTS FILES)
  cmake_path(GET file STEM LAST_ONLY language)
  file(STRINGS ${file} lacking REGEX "<translation type=\"unfinished\"")
  list(LENGTH lacking count)
  if(count GREATER 0)
    string(APPEND missing "\n  ${language} lacks ${count}")
  endif()
endforeach()
if(missing)
  message(STATUS "Texts of the programs that are shown in English:${missing}")
endif()
