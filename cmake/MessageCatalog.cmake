# Message-table modules from the catalog's sources.

find_program(WINDMC_EXECUTABLE NAMES x86_64-w64-mingw32-windmc REQUIRED)
find_program(MODULE_ASSEMBLER_EXECUTABLE NAMES x86_64-w64-mingw32-as REQUIRED)
find_program(MODULE_LINKER_EXECUTABLE NAMES x86_64-w64-mingw32-ld REQUIRED)
set(MESSAGE_CATALOG_DIR ${CMAKE_CURRENT_LIST_DIR})

# catalog_languages(<folder> <result>)
#
# The languages that the folder has a file of, such as "de" for de.po, and the folder's sources in
# <result>_SOURCES. A new file is noticed by the next build.
function(catalog_languages folder result)
  file(GLOB english CONFIGURE_DEPENDS ${folder}/*.mc)
  file(GLOB files CONFIGURE_DEPENDS ${folder}/*.po)
  set(languages "")
  foreach(file IN LISTS files)
    cmake_path(GET file STEM LAST_ONLY language)
    list(APPEND languages ${language})
  endforeach()
  set(${result} ${languages} PARENT_SCOPE)
  set(${result}_SOURCES ${english} ${files} PARENT_SCOPE)
endfunction()

# add_message_catalog(NAME <target> OUTPUT <file> CATALOG <folder> TABLES <table>...)
#
# Adds a target, part of "all", that makes the module OUTPUT (in CMAKE_RUNTIME_OUTPUT_DIRECTORY,
# else in the current binary directory) from the sources in the folder. Each of TABLES is a language,
# listed under the identifiers that its file names, or "<identifier>=<language>"; "en" is English.
# The module contains only message tables, each once, and the same sources give the same bytes.
# The target's property CATALOG_MODULE is the module's path.
function(add_message_catalog)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;OUTPUT;CATALOG" "TABLES")
  foreach(needed NAME OUTPUT CATALOG TABLES)
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
  file(MAKE_DIRECTORY ${work})
  catalog_languages(${arg_CATALOG} languages)
  list(JOIN arg_TABLES " " tables)

  add_custom_command(
    OUTPUT ${module}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${CMAKE_COMMAND} -DCATALOG_DIR=${arg_CATALOG} -DTABLES=${tables}
            -P ${MESSAGE_CATALOG_DIR}/WriteCatalogTables.cmake
    COMMAND ${WINDMC_EXECUTABLE} -C 65001 -U messages.mc
    COMMAND ${MODULE_ASSEMBLER_EXECUTABLE} -o module.o module.s
    COMMAND ${MODULE_LINKER_EXECUTABLE} --dll --entry=0 --strip-all --no-insert-timestamp
            -T ${MESSAGE_CATALOG_DIR}/MessageModule.ld -o ${module} module.o
    DEPENDS ${languages_SOURCES} ${MESSAGE_CATALOG_DIR}/WriteCatalogTables.cmake
            ${MESSAGE_CATALOG_DIR}/ReadCatalog.cmake ${MESSAGE_CATALOG_DIR}/MessageModule.ld
    WORKING_DIRECTORY ${work}
    COMMENT "Making message module ${arg_OUTPUT}"
    VERBATIM)
  add_custom_target(${arg_NAME} ALL DEPENDS ${module})
  set_target_properties(${arg_NAME} PROPERTIES CATALOG_MODULE ${module})
endfunction()
