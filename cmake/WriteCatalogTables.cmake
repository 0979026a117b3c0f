# cmake -DCATALOG_DIR=src/resources/catalog -DTABLES=<table>... -P WriteCatalogTables.cmake
#
# Writes, in the current folder, what the message compiler and the assembler make a module from:
# messages.mc, all texts of the languages that TABLES name, and module.s, the resources. A table is
# "<language>", which is listed under the identifiers that <language>.po names, or
# "<identifier>=<language>". All identifiers of a language share one table.
#
# "en" is English. "qps_ploc" and "qps_plocm" are made from English to test programs: with accents,
# longer by 40 %, and in brackets; the second is for windows that run from right to left.

cmake_minimum_required(VERSION 3.25)

set(pseudo qps_ploc qps_plocm)
string(REPLACE " " ";" TABLES "${TABLES}")
set(languages ${TABLES})
list(TRANSFORM languages REPLACE "^[0-9]+=" "")
list(REMOVE_DUPLICATES languages)
set(CATALOG_LANGUAGES ${languages})
list(REMOVE_ITEM CATALOG_LANGUAGES en ${pseudo})
include(${CMAKE_CURRENT_LIST_DIR}/ReadCatalog.cmake)
if(CATALOG_PROBLEMS)
  message(FATAL_ERROR "The message catalog has mistakes:${CATALOG_PROBLEMS}")
endif()

# The letters of English texts with accents. Inserts keep their letters.
macro(add_accents text)
  string(ASCII 1 mark)
  string(REPLACE "!d!" "!${mark}!" ${text} "${${text}}")
  set(plain "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ")
  set(accented "á" "ƀ" "ç" "đ" "é" "ƒ" "ǧ" "ħ" "í" "ĵ" "ķ" "ľ" "ɱ" "ñ" "ó" "þ" "ɋ" "ř" "š" "ŧ" "ú" "ṽ" "ŵ" "ẋ" "ý" "ž"
      "Á" "Ɓ" "Ç" "Đ" "É" "Ƒ" "Ǧ" "Ħ" "Í" "Ĵ" "Ķ" "Ľ" "Ṁ" "Ñ" "Ó" "Þ" "Ɋ" "Ř" "Š" "Ŧ" "Ú" "Ṽ" "Ŵ" "Ẋ" "Ý" "Ž")
  foreach(position RANGE 51)
    string(SUBSTRING "${plain}" ${position} 1 letter)
    list(GET accented ${position} replacement)
    string(REPLACE "${letter}" "${replacement}" ${text} "${${text}}")
  endforeach()
  string(REPLACE "${mark}" "d" ${text} "${${text}}")
endmacro()

foreach(language IN LISTS pseudo)
  if(NOT language IN_LIST languages)
    continue()
  endif()
  set(CATALOG_IDENTIFIERS_qps_ploc 1281)
  set(CATALOG_IDENTIFIERS_qps_plocm 2559)
  foreach(key IN LISTS CATALOG_KEYS)
    set(text "${CATALOG_TEXT_en_${key}}")
    string(LENGTH "${text}" length)
    math(EXPR more "${length} * 2 / 5")
    string(REPEAT "~" ${more} more)
    add_accents(text)
    set(CATALOG_TEXT_${language}_${key} "<lb>${text}${more}<rb>")
  endforeach()
endforeach()

# The message compiler wants an identifier that it knows for each language, although it writes them
# nowhere. It knows 1025 to 1080.
set(messages "${CATALOG_PROLOGUE}")
set(identifier 1024)
foreach(language IN LISTS languages)
  math(EXPR identifier "${identifier} + 1")
  string(APPEND messages "LanguageNames=(${language}=${identifier}:${language})\n")
endforeach()
foreach(key IN LISTS CATALOG_KEYS)
  set(texts "")
  foreach(language IN LISTS languages)
    if(DEFINED CATALOG_TEXT_${language}_${key})
      set(has_texts_${language} ON)
      string(APPEND texts "Language=${language}\n${CATALOG_TEXT_${language}_${key}}\n.\n")
    endif()
  endforeach()
  # The compiler rejects a message without a text. CheckCatalog.cmake names the missing texts.
  if(texts)
    string(REGEX MATCH "^(.*)_(.*)$" key "${key}")
    string(APPEND messages "\nMessageId=${CMAKE_MATCH_2}\nFacility=${CMAKE_MATCH_1}\n${texts}")
  endif()
endforeach()
catalog_text(messages "${messages}")
# The compiler keeps the line breaks of a text, and a table's texts end with CR LF.
string(REPLACE "\n" "\r\n" messages "${messages}")
file(WRITE messages.mc "${messages}")

# The resources: type 11 (message table), name 1, a leaf for each identifier.
set(identifiers "")
foreach(table IN LISTS TABLES)
  if(table MATCHES "^([0-9]+)=(.*)$")
    set(own ${CMAKE_MATCH_1})
    set(language ${CMAKE_MATCH_2})
  else()
    set(own ${CATALOG_IDENTIFIERS_${table}})
    set(language ${table})
  endif()
  foreach(identifier IN LISTS own)
    if(DEFINED table_of_${identifier})
      message(FATAL_ERROR "${language} and ${table_of_${identifier}} are both ${identifier}")
    endif()
    set(table_of_${identifier} ${language})
    list(APPEND identifiers ${identifier})
  endforeach()
endforeach()
list(SORT identifiers COMPARE NATURAL)
list(LENGTH identifiers count)
set(assembly ".section .rsrc, \"dr\"
types: .long 0, 0, 0\n.short 0, 1\n.long 11, 0x80000000 + (names - types)
names: .long 0, 0, 0\n.short 0, 1\n.long 1, 0x80000000 + (languages - types)
languages: .long 0, 0, 0\n.short 0, ${count}\n")
foreach(identifier IN LISTS identifiers)
  string(APPEND assembly ".long ${identifier}, leaf_${table_of_${identifier}} - types\n")
endforeach()
foreach(language IN LISTS languages)
  string(APPEND assembly
         "leaf_${language}: .rva table_${language}\n.long end_${language} - table_${language}, 0, 0\n")
endforeach()
foreach(language IN LISTS languages)
  # The message compiler writes no file for a language that has no texts yet.
  set(content ".long 0")
  if(has_texts_${language})
    set(content ".incbin \"${language}.bin\"")
  endif()
  string(APPEND assembly ".balign 4\ntable_${language}: ${content}\nend_${language}:\n")
endforeach()
file(WRITE module.s "${assembly}")
