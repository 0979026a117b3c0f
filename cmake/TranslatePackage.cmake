# cmake -DPACKAGING_DIR=packaging "-DTRANSLATIONS=<.ts file>..." -DMSGFMT=<program> -DOUTPUT_DIR=<folder>
#       -P TranslatePackage.cmake
#
# Writes the menu entry and the metainfo file with their texts in all languages, which the .ts files
# have in the context "Package". A list of words that ends with a semicolon keeps it.

cmake_minimum_required(VERSION 3.25)

string(REPLACE " " ";" TRANSLATIONS "${TRANSLATIONS}")
set(po ${OUTPUT_DIR}/po)
file(REMOVE_RECURSE ${po})
file(MAKE_DIRECTORY ${po})
set(languages "")
foreach(file IN LISTS TRANSLATIONS)
  cmake_path(GET file STEM LAST_ONLY language)
  file(READ ${file} text)
  string(FIND "${text}" "<name>Package</name>" begin)
  if(begin EQUAL -1)
    continue()  # English, which has only plurals
  endif()
  string(SUBSTRING "${text}" ${begin} -1 text)
  string(FIND "${text}" "</context>" end)
  string(SUBSTRING "${text}" 0 ${end} text)
  # So that the texts can go through a list.
  string(REPLACE ";" "@SC@" text "${text}")
  string(REGEX REPLACE "[ \n]*<extracomment>[^<]*</extracomment>" "" text "${text}")
  string(REGEX MATCHALL "<source>[^\n]*</source>[ \n]*<translation>[^\n]*</translation>" pairs "${text}")
  set(messages "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n")
  foreach(pair IN LISTS pairs)
    string(REGEX MATCH "<source>([^\n]*)</source>[ \n]*<translation>([^\n]*)</translation>" _ "${pair}")
    string(APPEND messages "\nmsgid \"${CMAKE_MATCH_1}\"\nmsgstr \"${CMAKE_MATCH_2}\"\n")
  endforeach()
  foreach(code "&lt@SC@=<" "&gt@SC@=>" "&apos@SC@='" "&quot@SC@=\\\"" "&amp@SC@=&")
    string(REGEX MATCH "^(.*)=(.*)$" _ "${code}")
    string(REPLACE "${CMAKE_MATCH_1}" "${CMAKE_MATCH_2}" messages "${messages}")
  endforeach()
  string(REPLACE "@SC@" ";" messages "${messages}")
  file(WRITE ${po}/${language}.po "${messages}")
  list(APPEND languages ${language})
endforeach()
list(JOIN languages "\n" names)
file(WRITE ${po}/LINGUAS "${names}\n")

set(entry advanced-control.desktop)
execute_process(
  COMMAND ${MSGFMT} --desktop --keyword=Name --keyword=GenericName --keyword=Comment --keyword=Keywords
          --template=${PACKAGING_DIR}/${entry} -d ${po} -o ${OUTPUT_DIR}/${entry}
  COMMAND_ERROR_IS_FATAL ANY)
set(metainfo org.advancedcontrol.advancedcontrol.metainfo.xml)
execute_process(
  COMMAND ${MSGFMT} --xml --template=${PACKAGING_DIR}/${metainfo} -d ${po} -o ${OUTPUT_DIR}/${metainfo}
  COMMAND_ERROR_IS_FATAL ANY)
