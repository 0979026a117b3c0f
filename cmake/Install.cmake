# Installs libraries, headers, catalog modules and the package config.
include(CMakePackageConfigHelpers)
set(libraries ProjectorCommon ProjectorSettings ProjectorFleet AdvancedControl)

# Builds with the run path of the installation. CMake would pad the path in order to patch it when
# installing, and an empty entry means the current directory. Programs installed in the system need
# no run path.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set_target_properties(${libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
set_target_properties(${libraries} PROPERTIES BUILD_WITH_INSTALL_RPATH ON)

# public_headers(<library> <header>...): the library's headers for its users, from src/.
function(public_headers library)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/src/)
  target_sources(${library} PUBLIC FILE_SET HEADERS
    BASE_DIRS ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/include
    FILES ${ARGN} ${PROJECT_BINARY_DIR}/include/${library}Export.h)
endfunction()

# Headers that a host includes: the connection and the channels to a projector, simulated or real.
public_headers(ProjectorCommon
  device/CModelInfo2.h
  device/CPjtInterface.h
  device/CProjectorItem.h
  device/Connect.h
  device/channels/BoundedChannel.h
  device/channels/ForwardingChannel.h
  device/channels/LoggingChannel.h
  simulator/FaultChannel.h
  simulator/SimulatedProjector.h
  # Headers that these include.
  Namespace.h
  device/CComCtrl.h
  device/CModelInfo.h
  device/CScheduleInfo.h
  device/CSocketCtrl.h
  device/CommandCode.h
  device/ConnectionState.h
  device/ModelData.h
  device/ModelDataIntake.h
  device/ModelDataSource.h
  device/OperationFamily.h
  device/PjtOperation.h
  device/PjtOperations.def
  device/ProjectorChannel.h
  device/protocol/WireFrame.h
  simulator/PowerSwitch.h
  simulator/Setting.h
  simulator/SimulatedModel.h
  simulator/SimulatedValues.h)
# The catalog.
public_headers(ProjectorSettings
  i18n/Catalog.h
  i18n/CatalogLanguages.h
  i18n/SystemLanguage.h
  # Headers that these and the pages include.
  i18n/MessageFormat.h
  settings/Call.h
  settings/CatalogNumbers.h
  settings/ErrorNumbers.h
  settings/ListEntry.h
  settings/ModelCodes.h
  settings/PageSets.h
  settings/Pages.def
  settings/Range.h
  settings/Rows.h)
# The dialog, and pages of page set 5 with their pop-up.
public_headers(AdvancedControl
  host/CAdvanceDlg.h
  i18n/LocalizeControlTexts.h
  pages/input/CInputType5Dlg.h
  pages/option/COption5TabDlg.h
  pages/option/CServiceDlg.h
  pages/picture/CPictureTabType5Dlg.h
  pages/setup/CAudioType5Dlg.h
  pages/setup/CSetupType5TabDlg.h
  # Headers that these include.
  pages/common/CTabPage.h
  pages/common/DialogContext.h
  pages/common/PageReader.h
  pages/common/PageRows.h
  pages/common/PendingInput.h
  pages/common/RowDialog.h
  pages/common/RowMenus.h
  pages/common/RowResets.h
  pages/common/SettingsDialog.h
  pages/common/WantedSettings.h
  pages/picture/PicturePage.h
  pages/rows/RowHost.h
  pages/rows/RowMemory.h
  pages/rows/RowNotes.h
  pages/rows/RowView.h
  toolkit/CDialog.h
  toolkit/CWnd.h
  toolkit/DialogTemplate.h
  toolkit/HandlerWatch.h
  toolkit/InputDialog.h
  toolkit/MadeWithNew.h
  toolkit/NotificationMap.h
  toolkit/OwnedDialog.h
  toolkit/TemplateDialog.h)
target_compile_features(ProjectorCommon PUBLIC cxx_std_20)
install(TARGETS ${libraries} EXPORT AdvancedControlTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
                NAMELINK_COMPONENT development
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/AdvancedControl
                 COMPONENT development)

install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/mcdll.dll ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/mcschn.dll
        DESTINATION ${CMAKE_INSTALL_DATADIR}/advanced-control COMPONENT library)

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/AdvancedControl)
configure_package_config_file(cmake/AdvancedControlConfig.cmake.in
  ${PROJECT_BINARY_DIR}/AdvancedControlConfig.cmake INSTALL_DESTINATION ${packageDir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/AdvancedControlConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(EXPORT AdvancedControlTargets NAMESPACE AdvancedControl:: DESTINATION ${packageDir}
        COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/AdvancedControlConfig.cmake
              ${PROJECT_BINARY_DIR}/AdvancedControlConfigVersion.cmake
        DESTINATION ${packageDir} COMPONENT development)
