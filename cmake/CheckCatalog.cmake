# cmake -DCATALOG_DIR=src/resources/catalog -DSOURCE_DIR=src -P CheckCatalog.cmake
#
# Fails if a text that the code uses is missing from the message catalog in any language. The code
# uses a text through a constant in settings/CatalogNumbers.h or through the caption of a template
# ("73;Brightness"). Also checks the catalog's sources: each entry must occur once, with a text in
# every language of prologue.mc and the same inserts in each.

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

set(problems "")
macro(problem text)
  string(APPEND problems "\n  ${text}")
endmacro()

# Reads a file so that its text can go through lists: ";" becomes "<sc>", brackets and backslashes
# become spaces.
function(read_text file result)
  file(READ "${file}" text)
  string(REPLACE "\r\n" "\n" text "${text}")
  string(REPLACE ";" "<sc>" text "${text}")
  string(REGEX REPLACE "[][\\]" " " text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# Languages and categories: a facility is a category with 256 added.
read_text("${CATALOG_DIR}/prologue.mc" prologue)
string(REGEX MATCHALL "[A-Za-z]+=0x[0-9A-Fa-f]+:" languages "${prologue}")
list(TRANSFORM languages REPLACE "=.*" "")
string(REGEX MATCH "FacilityNames=\\([^)]*\\)" facilities "${prologue}")
string(REGEX MATCHALL "[A-Za-z]+=0x[0-9A-Fa-f]+" facilities "${facilities}")
foreach(facility IN LISTS facilities)
  string(REGEX MATCH "^(.*)=(.*)$" facility "${facility}")
  math(EXPR category_${CMAKE_MATCH_1} "${CMAKE_MATCH_2} - 256")
endforeach()
if(NOT languages OR NOT facilities)
  message(FATAL_ERROR "CheckCatalog: ${CATALOG_DIR}/prologue.mc names no languages or facilities")
endif()

# The entries: has_<category>_<number>_<language> holds the inserts of each text.
set(keys "")
file(GLOB sources "${CATALOG_DIR}/*.mc")
list(FILTER sources EXCLUDE REGEX "/prologue\\.mc$")
foreach(source IN LISTS sources)
  get_filename_component(name "${source}" NAME)
  read_text("${source}" text)
  string(REPLACE "\n" ";" lines "${text}")
  set(number "")
  set(key "")
  set(language "")
  foreach(line IN LISTS lines)
    if(language)
      if(NOT line STREQUAL ".")
        string(APPEND body "${line}")
        continue()
      endif()
      if(body STREQUAL "")
        problem("${name}: ${number} has an empty text in ${language}")
      endif()
      string(REGEX MATCHALL "%[0-9]+(![a-z]+!)?" inserts "${body}")
      list(SORT inserts)
      if(DEFINED has_${key}_${language})
        problem("${name}: ${number} has two texts in ${language}")
      endif()
      list(JOIN inserts " " has_${key}_${language})
      set(language "")
      continue()
    endif()
    string(REGEX MATCH "^(MessageId|Facility|Language)=(.*)$" keyword "${line}")
    set(keyword "${CMAKE_MATCH_1}")
    set(value "${CMAKE_MATCH_2}")
    if(keyword STREQUAL "MessageId" AND value MATCHES "^[0-9]+$")
      set(number ${value})
      set(key "")
    elseif(keyword STREQUAL "Facility" AND DEFINED category_${value} AND number AND NOT key)
      set(key ${category_${value}}_${number})
      if(key IN_LIST keys)
        problem("${name}: ${number} is there twice")
      endif()
      set(entry_${key} "${name}")
      list(APPEND keys ${key})
    elseif(keyword STREQUAL "Language" AND value IN_LIST languages AND key)
      set(language ${value})
      set(body "")
    elseif(NOT line STREQUAL "" AND NOT line MATCHES "^<sc>")
      problem("${name}: \"${line}\" is not understood (after ${number})")
    endif()
  endforeach()
  if(language)
    problem("${name}: the ${language} text of ${number} has no end")
  endif()
endforeach()

# Reports the languages that lack a text.
macro(require category number user)
  foreach(language IN LISTS languages)
    if(NOT DEFINED has_${category}_${number}_${language})
      problem("category ${category}, number ${number}, ${language}: missing, named by ${user}")
    endif()
  endforeach()
  set(required_${category}_${number} ON)
endmacro()

# The constants.
read_text("${SOURCE_DIR}/settings/CatalogNumbers.h" header)
set(named 0)
foreach(group "Caption kCaptionCategory" "ListText kListCategory" "ErrorText kErrorCategory")
  string(REGEX MATCH "^(.*) (.*)$" group "${group}")
  set(scope ${CMAKE_MATCH_1})
  if(NOT header MATCHES "int ${CMAKE_MATCH_2} =[ \n]*([0-9]+)<sc>")
    message(FATAL_ERROR "CheckCatalog: CatalogNumbers.h has no number for ${CMAKE_MATCH_2}")
  endif()
  set(category ${CMAKE_MATCH_1})
  if(NOT header MATCHES "namespace ${scope} {(.*)}  // namespace ${scope}\n")
    message(FATAL_ERROR "CheckCatalog: CatalogNumbers.h has no namespace ${scope}")
  endif()
  string(REGEX MATCHALL "inline constexpr[^<]*<sc>" constants "${CMAKE_MATCH_1}")
  foreach(constant IN LISTS constants)
    if(NOT constant MATCHES "^inline constexpr int ([A-Za-z0-9]+) =[ \n]*([0-9]+)<sc>$")
      problem("CatalogNumbers.h: \"${constant}\" is not a named number")
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

# Entries that no code uses must be complete as well: a text without its translation is a mistake.
list(GET languages 0 first)
foreach(key IN LISTS keys)
  string(REPLACE "_" ", number " place "category ${key}")
  foreach(language IN LISTS languages)
    if(NOT DEFINED has_${key}_${language})
      if(NOT DEFINED required_${key})
        problem("${place}, ${language}: missing, named by ${entry_${key}}")
      endif()
    elseif(DEFINED has_${key}_${first} AND
           NOT has_${key}_${language} STREQUAL has_${key}_${first})
      problem("${place}: the inserts differ between ${first} and ${language}")
    endif()
  endforeach()
endforeach()

if(problems)
  message(FATAL_ERROR "The message catalog is incomplete:${problems}")
endif()
list(LENGTH keys entries)
list(JOIN languages ", " languages)
message(STATUS "Message catalog: ${entries} entries in ${languages}; "
               "${named} constants and ${captions} captions have their texts")
