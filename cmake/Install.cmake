# What `cmake --install` lays down: libraries, headers, catalog modules and the package config.
include(CMakePackageConfigHelpers)
set(libraries ProjectorCommon ProjectorSettings AdvancedControl)

# The path of the build is that of the installation: what CMake would patch on installing it pads, and
# an empty entry means the current directory. What is installed in the system needs none.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set_target_properties(${libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
set_target_properties(${libraries} PROPERTIES BUILD_WITH_INSTALL_RPATH ON)
target_compile_features(ProjectorCommon PUBLIC cxx_std_20)
install(TARGETS ${libraries} EXPORT AdvancedControlTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
                NAMELINK_COMPONENT development)

# The headers a host needs, and what those include.
file(GLOB headers RELATIVE ${PROJECT_SOURCE_DIR}/src CONFIGURE_DEPENDS
  src/device/*.h src/device/*.def src/simulator/*.h)
list(APPEND headers
  host/CAdvanceDlg.h i18n/Catalog.h i18n/LocalizeControlTexts.h i18n/SystemLanguage.h
  pages/input/CInputType5Dlg.h pages/input/COption5TabDlg.h pages/input/CServiceDlg.h
  pages/picture/CPictureTabType5Dlg.h pages/setup/CAudioType5Dlg.h
  pages/setup/CSetupType5TabDlg.h)
set(next 0)
list(LENGTH headers count)
while(next LESS count)
  list(GET headers ${next} header)
  file(STRINGS src/${header} includes REGEX "^#include \"")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE "^#include \"(.*)\".*" "\\1" include "${include}")
    list(APPEND headers ${include})
  endforeach()
  list(REMOVE_DUPLICATES headers)
  list(LENGTH headers count)
  math(EXPR next "${next} + 1")
endwhile()
list(TRANSFORM headers PREPEND src/ OUTPUT_VARIABLE read)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${read})
foreach(header IN LISTS headers)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES src/${header}
          DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/AdvancedControl/${folder} COMPONENT development)
endforeach()
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
