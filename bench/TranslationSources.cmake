# cmake -DCATALOG_DIR=src/resources/catalog -DOUTPUT_DIR=... -P TranslationSources.cmake
#
# Writes the catalog's texts as sources for the two translation systems that the benchmark compares:
# en.po, zh_CN.po (gettext) and en.ts, zh_CN.ts (Qt), each text under the key "category.number", and
# CatalogTexts.inc, a line {category, number} for each text.

cmake_minimum_required(VERSION 3.25)

set(language_English en)
set(language_Chinese zh_CN)

file(READ "${CATALOG_DIR}/prologue.mc" prologue)
string(REGEX MATCH "FacilityNames=\\([^)]*\\)" facilities "${prologue}")
string(REGEX MATCHALL "[A-Za-z]+=0x[0-9A-Fa-f]+" facilities "${facilities}")
foreach(facility IN LISTS facilities)
  string(REGEX MATCH "^(.*)=(.*)$" facility "${facility}")
  math(EXPR category_${CMAKE_MATCH_1} "${CMAKE_MATCH_2} - 256")
endforeach()

set(texts "")
foreach(language en zh_CN)
  set(po_${language} "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n")
  set(ts_${language} "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n")
  string(APPEND ts_${language}
         "<TS version=\"2.1\" language=\"${language}\"><context><name>Catalog</name>\n")
endforeach()

macro(add_text language key body)
  string(REPLACE "\\" "\\\\" quoted "${body}")
  string(REPLACE "\"" "\\\"" quoted "${quoted}")
  string(REPLACE "<nl>" "\\r\\n" quoted "${quoted}")
  string(APPEND po_${language} "msgid \"${key}\"\nmsgstr \"${quoted}\"\n")
  string(REPLACE "&" "&amp;" quoted "${body}")
  string(REPLACE "<nl>" "&#13;&#10;" quoted "${quoted}")
  string(APPEND ts_${language}
         "<message><source>${key}</source><translation>${quoted}</translation></message>\n")
endmacro()

file(GLOB sources "${CATALOG_DIR}/*.mc")
list(FILTER sources EXCLUDE REGEX "/prologue\\.mc$")
foreach(source IN LISTS sources)
  file(STRINGS "${source}" lines ENCODING UTF-8)
  set(language "")
  foreach(line IN LISTS lines)
    if(language)
      if(line STREQUAL ".")
        add_text(${language} ${key} "${body}")
        set(language "")
      elseif(body STREQUAL "")
        set(body "${line}")
      else()
        string(APPEND body "<nl>${line}")
      endif()
    elseif(line MATCHES "^MessageId=([0-9]+)$")
      set(number ${CMAKE_MATCH_1})
    elseif(line MATCHES "^Facility=(.*)$")
      set(key "${category_${CMAKE_MATCH_1}}.${number}")
      string(APPEND texts "{${category_${CMAKE_MATCH_1}}, ${number}},\n")
    elseif(line MATCHES "^Language=(.*)$")
      set(language ${language_${CMAKE_MATCH_1}})
      set(body "")
    endif()
  endforeach()
endforeach()

foreach(language en zh_CN)
  file(WRITE "${OUTPUT_DIR}/${language}.po" "${po_${language}}")
  file(WRITE "${OUTPUT_DIR}/${language}.ts" "${ts_${language}}</context></TS>\n")
endforeach()
file(WRITE "${OUTPUT_DIR}/CatalogTexts.inc" "${texts}")
