# cmake -DLUPDATE=<program> -DSOURCES=<folders and options> -DTRANSLATION=<.ts file> -P <this file>
#
# Fails when a text of the sources has no translation, or a translation no text.
get_filename_component(name ${TRANSLATION} NAME)
set(copy ${CMAKE_CURRENT_BINARY_DIR}/${name})
file(COPY ${TRANSLATION} DESTINATION ${CMAKE_CURRENT_BINARY_DIR})
execute_process(COMMAND ${LUPDATE} -silent -locations none ${SOURCES} -ts ${copy}
                COMMAND_ERROR_IS_FATAL ANY)
file(READ ${copy} texts)
if(NOT texts MATCHES "<translation>")
  message(FATAL_ERROR "${TRANSLATION} holds no translations")
endif()
if(texts MATCHES "<source>([^<]*)</source>[ \n]*<translation type=\"([a-z]+)\"")
  message(FATAL_ERROR "\"${CMAKE_MATCH_1}\" is ${CMAKE_MATCH_2}; build the target update-translations")
endif()
