# cmake -DCATALOG_DIR=src/resources/catalog -DOUTPUT_DIR=... -DLANGUAGES=<language>...
#       -P TranslationSources.cmake
#
# Writes the catalog's texts as sources for the two translation systems that the benchmark compares:
# <language>.po (gettext) and <language>.ts (Qt) for English and each of LANGUAGES, each text under
# the key "category.number", and CatalogTexts.inc, a line {category, number} for each text.

cmake_minimum_required(VERSION 3.25)

string(REPLACE " " ";" CATALOG_LANGUAGES "${LANGUAGES}")
include(${CMAKE_CURRENT_LIST_DIR}/../cmake/ReadCatalog.cmake)
if(CATALOG_PROBLEMS)
  message(FATAL_ERROR "The message catalog has mistakes:${CATALOG_PROBLEMS}")
endif()

function(add_text language number text)
  catalog_text(text "${text}")
  string(REPLACE "\\" "\\\\" quoted "${text}")
  string(REPLACE "\"" "\\\"" quoted "${quoted}")
  set(po_${language} "${po_${language}}msgid \"${number}\"\nmsgstr \"${quoted}\"\n" PARENT_SCOPE)
  string(REPLACE "&" "&amp;" quoted "${text}")
  set(message "<source>${number}</source><translation>${quoted}</translation>")
  set(ts_${language} "${ts_${language}}<message>${message}</message>\n" PARENT_SCOPE)
endfunction()

set(texts "")
foreach(key IN LISTS CATALOG_KEYS)
  string(REGEX MATCH "^(.*)_(.*)$" place "${key}")
  set(category ${CATALOG_CATEGORY_${CMAKE_MATCH_1}})
  set(number ${CMAKE_MATCH_2})
  string(APPEND texts "{${category}, ${number}},\n")
  foreach(language en ${CATALOG_LANGUAGES})
    add_text(${language} ${category}.${number} "${CATALOG_TEXT_${language}_${key}}")
  endforeach()
endforeach()
foreach(language en ${CATALOG_LANGUAGES})
  file(WRITE "${OUTPUT_DIR}/${language}.po"
       "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n${po_${language}}")
  file(WRITE "${OUTPUT_DIR}/${language}.ts"
       "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" "
       "language=\"${language}\"><context><name>Catalog</name>\n${ts_${language}}</context></TS>\n")
endforeach()
file(WRITE "${OUTPUT_DIR}/CatalogTexts.inc" "${texts}")
