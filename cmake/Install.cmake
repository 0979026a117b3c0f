# What `cmake --install` lays down: libraries, headers, catalog modules and the package config.
include(CMakePackageConfigHelpers)

set_target_properties(ProjectorCommon AdvancedControl PROPERTIES INSTALL_RPATH "$ORIGIN")
target_compile_features(ProjectorCommon PUBLIC cxx_std_20)
install(TARGETS ProjectorCommon AdvancedControl EXPORT AdvancedControlTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/AdvancedControl
        FILES_MATCHING PATTERN "*.h" PATTERN "*.def"
        PATTERN catalog EXCLUDE)
install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/mcdll.dll ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/mcschn.dll
        DESTINATION ${CMAKE_INSTALL_DATADIR}/advanced-control)

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/AdvancedControl)
configure_package_config_file(cmake/AdvancedControlConfig.cmake.in
  ${PROJECT_BINARY_DIR}/AdvancedControlConfig.cmake INSTALL_DESTINATION ${packageDir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/AdvancedControlConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(EXPORT AdvancedControlTargets NAMESPACE AdvancedControl:: DESTINATION ${packageDir})
install(FILES ${PROJECT_BINARY_DIR}/AdvancedControlConfig.cmake
              ${PROJECT_BINARY_DIR}/AdvancedControlConfigVersion.cmake
        DESTINATION ${packageDir})
