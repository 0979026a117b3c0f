# cmake -DBUILD_DIR=<build> -DSOURCE_DIR=<source> [-DUPDATE_EXPORTS=ON] -P <this file>
#
# Installs the build and moves the installed tree. Compiles each of its headers by itself, and
# builds and starts the example host, and a host with functions that have the same names as the
# library's. Then checks the catalogs and languages, the hardening of the programs, and that the
# libraries export exactly the functions in exported-symbols.txt beside this file, which
# UPDATE_EXPORTS rewrites.

cmake_minimum_required(VERSION 3.25)

set(first ${BUILD_DIR}/installed)
set(prefix ${BUILD_DIR}/installed-and-moved)
set(example ${BUILD_DIR}/installed-example)
set(namesakes ${BUILD_DIR}/installed-namesakes)
set(elsewhere ${BUILD_DIR}/installed-elsewhere)
file(REMOVE_RECURSE ${first} ${prefix} ${example} ${namesakes} ${elsewhere})

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
                  ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${first})
file(RENAME ${first} ${prefix})
foreach(file share/advanced-control/mcdll.dll share/advanced-control/mcschn.dll
             etc/default/advanced-control-bridge)
  if(NOT EXISTS ${prefix}/${file})
    message(FATAL_ERROR "${file} is not installed below the prefix")
  endif()
endforeach()
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/minimal -B ${example} -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} -DEACH_HEADER=ON)
run(${CMAKE_COMMAND} --build ${example})

# The host runs until it is stopped, because nobody closes its dialog.
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${example}/minimal-host
                TIMEOUT 4 RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result MATCHES "timeout")
  message(FATAL_ERROR "The example ended by itself: ${result}\n${errors}")
endif()

# A host's functions must not replace the library's.
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/installed -B ${namesakes} -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${namesakes})
run(${CMAKE_COMMAND} -E env LC_ALL=C QT_QPA_PLATFORM=offscreen ${namesakes}/namesake-host)

# A language chosen by a program must also apply to its dialogs, because the process has one
# catalog.
file(WRITE ${elsewhere}/projectors.json [[{"projectors": [
  {"name": "Hall", "model": "Hall", "dialogType": 5, "modelCode": 30,
   "connection": {"network": {"address": "192.0.2.30", "port": 4352}}}]}]])
set(program ${CMAKE_COMMAND} -E env LC_ALL=C ${prefix}/bin)
run(${program}/advanced-control --profiles ${elsewhere}/projectors.json --language 2052
    --tour ${elsewhere}/tour)
file(READ ${elsewhere}/tour/index.html pages)
execute_process(COMMAND ${program}/acctl --profiles ${elsewhere}/projectors.json --language 2052
                        settings Hall
                OUTPUT_VARIABLE settings COMMAND_ERROR_IS_FATAL ANY)
foreach(shown pages settings)
  if(NOT ${shown} MATCHES "状态")
    message(FATAL_ERROR "The ${shown} are not in Chinese:\n${${shown}}")
  endif()
endforeach()

# The programs must be hardened, and must not search the current directory for libraries.
foreach(built libAdvancedControl.so libProjectorFleet.so libProjectorSettings.so libProjectorCommon.so
              advanced-control acctl advanced-control-bridge advanced-control-simulator)
  execute_process(COMMAND readelf -Wd ${BUILD_DIR}/bin/${built} OUTPUT_VARIABLE dynamic
                  COMMAND_ERROR_IS_FATAL ANY)
  if(NOT dynamic MATCHES "BIND_NOW|Flags: NOW")
    message(FATAL_ERROR "${built} is not bound when it starts")
  endif()
  if(dynamic MATCHES "R(UN)?PATH[^[]*\\[([^\n]*)\\]" AND
     NOT CMAKE_MATCH_2 MATCHES "^\\$ORIGIN[^:]*(:\\$ORIGIN[^:]*)*$")
    message(FATAL_ERROR "${built} looks for libraries elsewhere than beside it:\n${dynamic}")
  endif()
  execute_process(COMMAND nm -D ${BUILD_DIR}/bin/${built} OUTPUT_VARIABLE used
                  COMMAND_ERROR_IS_FATAL ANY)
  if(NOT used MATCHES "__stack_chk_fail")
    message(FATAL_ERROR "${built} has no stack protector")
  endif()
  # The other libraries are compiled in the same way, but call no function that this would change.
  if(built MATCHES "^libProjector(Settings|Common)" AND NOT used MATCHES "__[a-z]+printf_chk")
    message(FATAL_ERROR "${built} is not fortified")
  endif()
endforeach()

# The catalogs must be found wherever the tree is, with precedence over those in the current
# directory.
file(WRITE ${elsewhere}/mcdll.dll "no module")
function(expect_catalog folder expected)
  # The catalog is loaded by the library itself and by a program linked to it.
  set(host LD_PRELOAD=${folder}/libAdvancedControl.so true)
  set(program ${prefix}/bin/advanced-control --list)
  foreach(command host program)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C LD_LIBRARY_PATH=${folder} ${${command}}
                    WORKING_DIRECTORY ${elsewhere} OUTPUT_QUIET ERROR_VARIABLE errors
                    COMMAND_ERROR_IS_FATAL ANY)
    if(NOT errors MATCHES "^${expected}$")
      message(FATAL_ERROR "The catalog of a ${command} with libraries in ${folder}: ${errors}")
    endif()
  endforeach()
endfunction()
expect_catalog(${prefix}/lib "")
set(multiarch ${prefix}/lib/x86_64-linux-gnu)
file(MAKE_DIRECTORY ${multiarch})
file(GLOB libraries ${prefix}/lib/*.so*)
foreach(library IN LISTS libraries)
  get_filename_component(name ${library} NAME)
  file(RENAME ${library} ${multiarch}/${name})
endforeach()
expect_catalog(${multiarch} "")
file(REMOVE ${prefix}/share/advanced-control/mcdll.dll)
expect_catalog(${multiarch} ".*mcdll.dll is refused.*")

# A host's function can replace an exported function with the same name.
set(shown "")
foreach(library AdvancedControl ProjectorFleet ProjectorSettings ProjectorCommon)
  execute_process(COMMAND nm -DC --defined-only ${BUILD_DIR}/bin/lib${library}.so
                  OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL " T [^\n]*" functions "${symbols}")
  # A class is listed instead of its members.
  list(TRANSFORM functions REPLACE "^ T (non-virtual thunk to |virtual thunk to )?" "")
  list(TRANSFORM functions REPLACE "^((AdvancedControl::)?[^:([]+).*" "\\1")
  list(TRANSFORM functions PREPEND "${library} ")
  list(APPEND shown ${functions})
endforeach()
list(REMOVE_DUPLICATES shown)
list(SORT shown)
set(listing ${CMAKE_CURRENT_LIST_DIR}/exported-symbols.txt)
if(UPDATE_EXPORTS)
  list(JOIN shown "\n" text)
  file(WRITE ${listing} "${text}\n")
endif()
file(STRINGS ${listing} offered)
foreach(symbol IN LISTS shown)
  if(NOT symbol IN_LIST offered)
    message(FATAL_ERROR "The library shows its users more than it offers: ${symbol}")
  endif()
endforeach()
foreach(symbol IN LISTS offered)
  if(NOT symbol IN_LIST shown)
    message(FATAL_ERROR "Hidden from the library's users: ${symbol}")
  endif()
endforeach()
