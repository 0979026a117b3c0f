# cmake -DBUILD_DIR=<build> -DSOURCE_DIR=<source> -P <this file>
#
# Installs the build, moves the installed tree, compiles each of its headers by itself, and builds
# and starts the example host against it. Then looks at the libraries: they must show their users
# the dialog and hide the toolkit's inside.

set(first ${BUILD_DIR}/installed)
set(prefix ${BUILD_DIR}/installed-and-moved)
set(example ${BUILD_DIR}/installed-example)
file(REMOVE_RECURSE ${first} ${prefix} ${example})

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
                  ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${first})
file(RENAME ${first} ${prefix})
foreach(module mcdll.dll mcschn.dll)
  if(NOT EXISTS ${prefix}/share/advanced-control/${module})
    message(FATAL_ERROR "${module} is not installed")
  endif()
endforeach()
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/minimal -B ${example} -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} -DEACH_HEADER=ON)
run(${CMAKE_COMMAND} --build ${example})

# The host runs until its user closes the dialog; nobody does.
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${example}/minimal-host
                TIMEOUT 4 RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result MATCHES "timeout")
  message(FATAL_ERROR "The example ended by itself: ${result}\n${errors}")
endif()

# Hardened, and no library is looked for in the current directory.
foreach(built libAdvancedControl.so libProjectorCommon.so advanced-control)
  execute_process(COMMAND readelf -Wd ${BUILD_DIR}/bin/${built} OUTPUT_VARIABLE dynamic
                  COMMAND_ERROR_IS_FATAL ANY)
  if(NOT dynamic MATCHES "BIND_NOW|Flags: NOW")
    message(FATAL_ERROR "${built} is not bound when it starts")
  endif()
  if(dynamic MATCHES "(RUNPATH|RPATH)[^\n]*(:\\]|::|\\[:)")
    message(FATAL_ERROR "${built} looks for libraries in the current directory:\n${dynamic}")
  endif()
  execute_process(COMMAND nm -D ${BUILD_DIR}/bin/${built} OUTPUT_VARIABLE used
                  COMMAND_ERROR_IS_FATAL ANY)
  if(NOT used MATCHES "__stack_chk_fail")
    message(FATAL_ERROR "${built} has no stack protector")
  endif()
endforeach()

execute_process(COMMAND nm -DC --defined-only ${BUILD_DIR}/bin/libAdvancedControl.so
                OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
foreach(shown "CAdvanceDlg::CopyData3(" "CAdvanceDlg::DispTabScreen(" "GetCatalogText("
              "CPictureTabType5Dlg::ActIrisValueToIdx(" "CServiceDlg::CServiceDlg(" "CServiceDlg::OnBnClickedSvcIrtopchk("
              "CInputType5Dlg::OnCbnSelchangeInput5ProgComb(" "COption5TabDlg::OnHScroll("
              "CPjtInterface::operator=(")
  string(FIND "${symbols}" "${shown}" found)
  if(found EQUAL -1)
    message(FATAL_ERROR "${shown} is hidden from the library's users")
  endif()
endforeach()
string(REGEX MATCHALL "[^\n]* T [^\n]*" functions "${symbols}")
foreach(function IN LISTS functions)
  if(NOT function MATCHES " T (non-virtual thunk to |virtual thunk to )?(CAdvanceDlg|CDialog|SettingsDialog|RowDialog|CTabPage|PicturePage|CPictureTabType5Dlg|CSetupType5TabDlg|CAudioType5Dlg|CInputType5Dlg|COption5TabDlg|CServiceDlg|CPjtInterface|CModelInfo|CScheduleInfo|CComCtrl|CSocketCtrl|LoadCatalog|ReleaseCatalog|IsCatalogLoaded|CatalogProblem|GetCatalogText|GetCatalogTextV|LocalizeControlTexts|SystemLanguageId|WindowText|SetWindowText|PagesOf|TabsOf|TableOf|KeyOf|ControlOf|FindRow|KeepsTemplate|Has|ReadingOf|SliderRange|StepBounds|Perform|Read|GammaEntries|ColorTempEntries|Picture1ColorTempEntries|WhisperEntries|AspectEntries|SourceEntries|PositionOf|ParseRange)(::|\\(|\\[abi)")
    message(FATAL_ERROR "The library shows its users more than it offers: ${function}")
  endif()
endforeach()
foreach(hidden "CSliderCtrl::" "ResourceChain::" "CStatusTabDlg::" "MessageTable::")
  string(FIND "${symbols}" "${hidden}" found)
  if(NOT found EQUAL -1)
    message(FATAL_ERROR "${hidden} is shown to the library's users")
  endif()
endforeach()
