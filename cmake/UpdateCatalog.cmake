# cmake -DCATALOG_DIR=src/resources/catalog -DLANGUAGES=<language>... -P UpdateCatalog.cmake
#
# Brings the catalog's translations into the order and the state of the English texts: adds entries
# for new texts, drops those of texts that are gone, and marks the translation of a text that has
# changed as fuzzy, with the former English text beside it. A new language is a file that has only
# the first entry, with its X-Language-Identifiers.

cmake_minimum_required(VERSION 3.25)

string(REPLACE " " ";" CATALOG_LANGUAGES "${LANGUAGES}")
include(${CMAKE_CURRENT_LIST_DIR}/ReadCatalog.cmake)
# A translation of a text that is gone is no mistake here.
string(REGEX REPLACE "\n  [A-Za-z_]+\\.po: there is no [^\n]*" "" mistakes "${CATALOG_PROBLEMS}")
if(mistakes)
  message(FATAL_ERROR "The message catalog has mistakes:${mistakes}")
endif()

function(quote result text)
  string(REPLACE "\"" "\\\"" text "${text}")
  set(${result} "\"${text}\"" PARENT_SCOPE)
endfunction()

foreach(language IN LISTS CATALOG_LANGUAGES)
  set(po "${CATALOG_HEADER_${language}}")
  foreach(key IN LISTS CATALOG_KEYS)
    string(REGEX REPLACE "(.*)\n$" "\\1" notes "${CATALOG_NOTES_${key}}")
    if(NOT notes STREQUAL "")
      string(REPLACE "\n" "\n#. " notes "#. ${notes}\n")
      string(REGEX REPLACE "#\\. $" "" notes "${notes}")
    endif()
    set(translation "${CATALOG_TEXT_${language}_${key}}")
    set(old "")
    if(DEFINED CATALOG_OLD_${language}_${key})
      set(translation "${CATALOG_OLD_${language}_${key}}")
      set(old "#, fuzzy\n")
      if(NOT CATALOG_SOURCE_${language}_${key} STREQUAL CATALOG_TEXT_en_${key})
        quote(source "${CATALOG_SOURCE_${language}_${key}}")
        string(APPEND old "#| msgid ${source}\n")
      endif()
    endif()
    string(REPLACE "_" " " context "${key}")
    quote(english "${CATALOG_TEXT_en_${key}}")
    quote(translation "${translation}")
    string(APPEND po "\n${notes}${old}msgctxt \"${context}\"\nmsgid ${english}\nmsgstr ${translation}\n")
  endforeach()
  catalog_text(po "${po}")
  file(WRITE "${CATALOG_DIR}/${language}.po" "${po}")
endforeach()
