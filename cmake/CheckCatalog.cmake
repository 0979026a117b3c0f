# cmake -DCATALOG_DIR=src/resources/catalog -DSOURCE_DIR=src -DLANGUAGES=<language>...
#       [-DSAME_TEXTS=<file>] -P CheckCatalog.cmake
#
# Fails if a text that the code uses is missing from the message catalog in English or in Simplified
# Chinese, whose module has no English texts to fall back to. The code uses a text through a constant
# in settings/CatalogNumbers.h or ErrorNumbers.h, or through the caption of a template ("73;Brightness").
# Also fails if a translation has other inserts than the English text, and lists the texts that a
# language lacks.
#
# With SAME_TEXTS it also fails if a translation equals the English text and the file does not say
# that it may. A line of it is "<text> = <languages>", or "<text> = *" for all of them.

cmake_minimum_required(VERSION 3.25)

# The first and last value that is added to a constant whose name ends in "Base".
set(runs
  "ListText::AspectBase 0 16"
  "ListText::WideAspectBase 0 16"
  "ListText::GammaBase 0 45"
  "ListText::ColorTempBase 0 29"
  "ListText::Picture1ColorTempBase 0 29"
  "ListText::MyMemoryBase 0 7"
  "ListText::MemoryDoneBase 0 7"
  "ListText::LanguageBase 0 16"
  "ListText::MyButtonBase 0 6"
  "ListText::MyButtonBase 16 27"
  "ListText::MyButtonBase 32 36"
  "ListText::MyButtonBase 48 49"
  "ListText::MyButtonBase 255 255"
  "ErrorText::GammaPointRefusedBase 0 7")

foreach(needed CATALOG_DIR SOURCE_DIR)
  if(NOT IS_DIRECTORY "${${needed}}")
    message(FATAL_ERROR "CheckCatalog: ${needed} is no folder: \"${${needed}}\"")
  endif()
endforeach()

string(REPLACE " " ";" CATALOG_LANGUAGES "${LANGUAGES}")
include(${CMAKE_CURRENT_LIST_DIR}/ReadCatalog.cmake)
set(problems "${CATALOG_PROBLEMS}")
macro(problem text)
  string(APPEND problems "\n  ${text}")
endmacro()
foreach(facility Captions Lists Errors)
  set(facility_${CATALOG_CATEGORY_${facility}} ${facility})
endforeach()

# Reads a source file so that its text can go through lists: ";" becomes "<sc>", brackets and
# backslashes become spaces.
function(read_text file result)
  file(READ "${file}" text)
  string(REPLACE ";" "<sc>" text "${text}")
  string(REGEX REPLACE "[][\\]" " " text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# Reports the languages that lack a text.
macro(require category number user)
  foreach(language en zh_CN)
    if(NOT DEFINED CATALOG_TEXT_${language}_${facility_${category}}_${number})
      problem("${facility_${category}} ${number}, ${language}: missing, named by ${user}")
    endif()
  endforeach()
endmacro()

# The constants.
read_text("${SOURCE_DIR}/settings/CatalogNumbers.h" header)
read_text("${SOURCE_DIR}/settings/ErrorNumbers.h" errors)
string(APPEND header "${errors}")
set(named 0)
foreach(group "Caption kCaptionCategory" "ListText kListCategory" "ErrorText kErrorCategory")
  string(REGEX MATCH "^(.*) (.*)$" group "${group}")
  set(scope ${CMAKE_MATCH_1})
  if(NOT header MATCHES "int ${CMAKE_MATCH_2} =[ \n]*([0-9]+)<sc>")
    message(FATAL_ERROR "CheckCatalog: no header has a number for ${CMAKE_MATCH_2}")
  endif()
  set(category ${CMAKE_MATCH_1})
  if(NOT header MATCHES "namespace ${scope} {(.*)}  // namespace ${scope}\n")
    message(FATAL_ERROR "CheckCatalog: no header has the namespace ${scope}")
  endif()
  string(REGEX MATCHALL "inline constexpr[^<]*<sc>" constants "${CMAKE_MATCH_1}")
  foreach(constant IN LISTS constants)
    if(NOT constant MATCHES "^inline constexpr int ([A-Za-z0-9]+) =[ \n]*([0-9]+)<sc>$")
      problem("\"${constant}\" is not a named number")
      continue()
    endif()
    set(user "${scope}::${CMAKE_MATCH_1}")
    set(number ${CMAKE_MATCH_2})
    math(EXPR named "${named} + 1")
    if(NOT user MATCHES "Base$")
      require(${category} ${number} ${user})
      continue()
    endif()
    set(ranges ${runs})
    list(FILTER ranges INCLUDE REGEX "^${user} ")
    if(NOT ranges)
      problem("${user}: CheckCatalog.cmake does not list what is added to it")
    endif()
    foreach(range IN LISTS ranges)
      string(REGEX MATCH "^.* ([0-9]+) ([0-9]+)$" range "${range}")
      set(last ${CMAKE_MATCH_2})
      foreach(value RANGE ${CMAKE_MATCH_1} ${last})
        math(EXPR sum "${number} + ${value}")
        require(${category} ${sum} "${user} + ${value}")
      endforeach()
    endforeach()
  endforeach()
  set(category_of_${scope} ${category})
endforeach()

# The captions of the templates.
set(captions 0)
file(GLOB templates "${SOURCE_DIR}/resources/*.cpp" "${SOURCE_DIR}/resources/*.h")
foreach(template IN LISTS templates)
  get_filename_component(name "${template}" NAME)
  read_text("${template}" text)
  string(REGEX MATCHALL "\"[0-9]+<sc>[^\"\n]*[^\" \n][^\"\n]*\"" quoted "${text}")
  foreach(caption IN LISTS quoted)
    string(REGEX MATCH "[0-9]+" number "${caption}")
    require(${category_of_Caption} ${number} ${name})
    math(EXPR captions "${captions} + 1")
  endforeach()
endforeach()
if(captions EQUAL 0)
  problem("no template caption found in ${SOURCE_DIR}/resources")
endif()

# The translations.
if(SAME_TEXTS)
  catalog_lines("${SAME_TEXTS}" lines)
  foreach(line IN LISTS lines)
    if(line MATCHES "^(.+) = (.+)$")
      set(text "${CMAKE_MATCH_1}")
      string(REPLACE " " ";" "same_${text}" "${CMAKE_MATCH_2}")
    elseif(NOT line MATCHES "^(#.*)?$")
      problem("${SAME_TEXTS}: \"${line}\" is not understood")
    endif()
  endforeach()
endif()
macro(find_inserts text result)
  string(REGEX MATCHALL "%[0-9]+(![a-z]+!)?" ${result} "${text}")
  list(SORT ${result})
endmacro()
set(missing "")
foreach(language IN LISTS CATALOG_LANGUAGES)
  set(lacks "")
  foreach(key IN LISTS CATALOG_KEYS)
    set(english "${CATALOG_TEXT_en_${key}}")
    if(NOT DEFINED CATALOG_TEXT_${language}_${key})
      string(REPLACE "_" " " place "${key}")
      if(DEFINED CATALOG_OLD_${language}_${key})
        string(APPEND place " (not current)")
      endif()
      list(APPEND lacks "${place}")
      continue()
    endif()
    set(text "${CATALOG_TEXT_${language}_${key}}")
    find_inserts("${text}" inserts)
    find_inserts("${english}" wanted)
    if(NOT inserts STREQUAL wanted)
      problem("${language}.po: the inserts of ${key} differ from the English ones")
    endif()
    if(SAME_TEXTS AND text STREQUAL english AND NOT "*" IN_LIST "same_${english}" AND
       NOT language IN_LIST "same_${english}")
      problem("${language}.po: \"${text}\" (${key}) is the English text; ${SAME_TEXTS} does not list it")
    endif()
  endforeach()
  if(lacks)
    list(LENGTH lacks count)
    list(JOIN lacks ", " lacks)
    string(APPEND missing "\n  ${language} lacks ${count}: ${lacks}")
    if(language STREQUAL "zh_CN")
      problem("zh_CN lacks ${lacks}")
    endif()
  endif()
endforeach()

if(problems)
  message(FATAL_ERROR "The message catalog has mistakes:${problems}")
endif()
if(missing)
  message(STATUS "Texts that are shown in English:${missing}")
endif()
list(LENGTH CATALOG_KEYS entries)
list(JOIN CATALOG_LANGUAGES ", " languages)
message(STATUS "Message catalog: ${entries} entries in English, ${languages}; "
               "${named} constants and ${captions} captions have their texts")
