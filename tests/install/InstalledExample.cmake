# cmake -DBUILD_DIR=<build> -DEXAMPLE_DIR=<examples/minimal> -DCXX_FLAGS=<flags> -P <this file>
#
# Installs the build into a folder of its own, builds the example host against it and starts it.

set(prefix ${BUILD_DIR}/installed)
set(example ${BUILD_DIR}/installed-example)
file(REMOVE_RECURSE ${prefix} ${example})

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
                  ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
foreach(module mcdll.dll mcschn.dll)
  if(NOT EXISTS ${prefix}/share/advanced-control/${module})
    message(FATAL_ERROR "${module} is not installed")
  endif()
endforeach()
run(${CMAKE_COMMAND} -S ${EXAMPLE_DIR} -B ${example} -G Ninja -DCMAKE_PREFIX_PATH=${prefix}
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}")
run(${CMAKE_COMMAND} --build ${example})

# The host runs until its user closes the dialog; nobody does.
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${example}/minimal-host
                TIMEOUT 4 RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result MATCHES "timeout")
  message(FATAL_ERROR "The example ended by itself: ${result}\n${errors}")
endif()
