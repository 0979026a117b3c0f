# Message-table modules from message-compiler sources.

find_program(WINDMC_EXECUTABLE NAMES x86_64-w64-mingw32-windmc REQUIRED)
find_program(WINDRES_EXECUTABLE NAMES x86_64-w64-mingw32-windres REQUIRED)
find_program(MODULE_LINKER_EXECUTABLE NAMES x86_64-w64-mingw32-ld REQUIRED)
set(MESSAGE_CATALOG_DIR ${CMAKE_CURRENT_LIST_DIR})

# add_message_catalog(NAME <target> OUTPUT <file> SOURCES <prologue.mc> <file.mc>...
#                     TABLES <language identifier>=<compiled language>...)
#
# Adds a target, part of "all", that makes the module OUTPUT (in CMAKE_RUNTIME_OUTPUT_DIRECTORY,
# else in the current binary directory). The sources are UTF-8 and are compiled as one, the prologue
# first. Each of TABLES puts the texts of one compiled language, called by the file name of the
# prologue's LanguageNames, under a decimal language identifier; one language may serve several
# identifiers. The module contains only the message table, and the same sources give the same bytes.
# The target's property CATALOG_MODULE is the module's path.
function(add_message_catalog)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;OUTPUT" "SOURCES;TABLES")
  foreach(needed NAME OUTPUT SOURCES TABLES)
    if(NOT arg_${needed})
      message(FATAL_ERROR "add_message_catalog: ${needed} is missing")
    endif()
  endforeach()

  set(work ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.dir)
  set(folder ${CMAKE_CURRENT_BINARY_DIR})
  if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    set(folder ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endif()
  set(module ${folder}/${arg_OUTPUT})

  set(script "")
  foreach(table IN LISTS arg_TABLES)
    if(NOT table MATCHES "^([0-9]+)=([A-Za-z0-9_]+)$")
      message(FATAL_ERROR "add_message_catalog: bad table \"${table}\"")
    endif()
    set(texts ${CMAKE_MATCH_2})
    math(EXPR primary "${CMAKE_MATCH_1} & 0x3ff")
    math(EXPR region "${CMAKE_MATCH_1} >> 10")
    string(APPEND script "LANGUAGE ${primary}, ${region}\n1 MESSAGETABLE \"${texts}.bin\"\n")
  endforeach()
  file(CONFIGURE OUTPUT ${work}/module.rc CONTENT "${script}" @ONLY)

  list(TRANSFORM arg_SOURCES REPLACE "^([^/].*)$" "${CMAKE_CURRENT_SOURCE_DIR}/\\1")
  add_custom_command(
    OUTPUT ${module}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${CMAKE_COMMAND} -P ${MESSAGE_CATALOG_DIR}/JoinMessageSources.cmake
            messages.mc ${arg_SOURCES}
    COMMAND ${WINDMC_EXECUTABLE} -C 65001 -U messages.mc
    # The resource compiler needs a preprocessor; uses that of the host compiler.
    COMMAND ${WINDRES_EXECUTABLE} --preprocessor=${CMAKE_CXX_COMPILER} --preprocessor-arg=-E
            --preprocessor-arg=-xc++ --output-format=coff module.rc module.o
    COMMAND ${MODULE_LINKER_EXECUTABLE} --dll --entry=0 --strip-all --no-insert-timestamp
            -T ${MESSAGE_CATALOG_DIR}/MessageModule.ld -o ${module} module.o
    DEPENDS ${arg_SOURCES} ${work}/module.rc ${MESSAGE_CATALOG_DIR}/JoinMessageSources.cmake
            ${MESSAGE_CATALOG_DIR}/MessageModule.ld
    WORKING_DIRECTORY ${work}
    COMMENT "Making message module ${arg_OUTPUT}"
    VERBATIM)
  add_custom_target(${arg_NAME} ALL DEPENDS ${module})
  set_target_properties(${arg_NAME} PROPERTIES CATALOG_MODULE ${module})
endfunction()
