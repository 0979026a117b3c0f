# Debian packages: `cmake --preset package && cmake --build --preset package && cpack --preset package`.
#
# The library with its catalogs, the files to build against it, the programs, and the bridge. Their
# components are those of the install rules.
set(ADVANCEDCONTROL_MAINTAINER "Advanced Control maintainers <maintainers@example.org>"
    CACHE STRING "Maintainer of the Debian packages, as name <address>")

find_program(GZIP_EXECUTABLE gzip REQUIRED)
function(install_compressed source destination component)
  get_filename_component(name ${destination} NAME)
  set(compressed ${PROJECT_BINARY_DIR}/packaging/${component}/${name})
  add_custom_command(OUTPUT ${compressed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packaging/${component}
    COMMAND sh -c "${GZIP_EXECUTABLE} -9nc ${PROJECT_SOURCE_DIR}/packaging/${source} > ${compressed}"
    DEPENDS ${PROJECT_SOURCE_DIR}/packaging/${source}
    VERBATIM)
  add_custom_target(Compressed-${component}-${name} ALL DEPENDS ${compressed})
  get_filename_component(folder ${destination} DIRECTORY)
  install(FILES ${compressed} DESTINATION ${folder} COMPONENT ${component})
endfunction()

# What menus and software catalogs show, in all languages.
find_program(MSGFMT_EXECUTABLE msgfmt REQUIRED)
file(GLOB translations CONFIGURE_DEPENDS translations/*.ts)
list(JOIN translations " " translationNames)
set(entry advanced-control.desktop)
set(metainfo org.advancedcontrol.advancedcontrol.metainfo.xml)
set(translated ${PROJECT_BINARY_DIR}/packaging/translated)
add_custom_command(OUTPUT ${translated}/${entry} ${translated}/${metainfo}
  COMMAND ${CMAKE_COMMAND} -DPACKAGING_DIR=${PROJECT_SOURCE_DIR}/packaging
          "-DTRANSLATIONS=${translationNames}" -DMSGFMT=${MSGFMT_EXECUTABLE} -DOUTPUT_DIR=${translated}
          -P ${PROJECT_SOURCE_DIR}/cmake/TranslatePackage.cmake
  DEPENDS ${translations} packaging/${entry} packaging/${metainfo} cmake/TranslatePackage.cmake
  VERBATIM)
add_custom_target(PackageTexts ALL DEPENDS ${translated}/${entry} ${translated}/${metainfo})
install(FILES ${translated}/${entry}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT program)
install(FILES ${translated}/${metainfo}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT program)
install(FILES app/desktop/icons/advanced-control.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT program)
install(FILES app/desktop/icons/advanced-control.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/64x64/apps COMPONENT program)
install_compressed(advanced-control.1 ${CMAKE_INSTALL_MANDIR}/man1/advanced-control.1.gz program)
install_compressed(advanced-control-simulator.1
  ${CMAKE_INSTALL_MANDIR}/man1/advanced-control-simulator.1.gz program)
install(FILES packaging/lintian-overrides RENAME advanced-control
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT program)

# Alerts and dashboard, and the service with its options.
install(FILES packaging/bridge/projector-alerts.yml packaging/bridge/projectors-dashboard.json
        DESTINATION ${CMAKE_INSTALL_DATADIR}/advanced-control-bridge COMPONENT bridge)
install(FILES packaging/bridge/advanced-control-bridge.service
        DESTINATION lib/systemd/system COMPONENT bridge)
# Only a path below the prefix follows `cmake --install --prefix`. The packages have it in /etc.
set(optionsDir ${CMAKE_INSTALL_SYSCONFDIR}/default)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set(optionsDir ${CMAKE_INSTALL_FULL_SYSCONFDIR}/default)
endif()
install(FILES packaging/bridge/advanced-control-bridge.default RENAME advanced-control-bridge
        DESTINATION ${optionsDir} COMPONENT bridge)
install_compressed(advanced-control-bridge.1
  ${CMAKE_INSTALL_MANDIR}/man1/advanced-control-bridge.1.gz bridge)

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME advanced-control)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${ADVANCEDCONTROL_MAINTAINER}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL library development program bridge)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)

set(version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(library libadvancedcontrol${PROJECT_VERSION_MAJOR})

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
# Which version has which function, so that a program asks for no later one than it needs.
set(symbols ${PROJECT_BINARY_DIR}/packaging/symbols)
set(gensymbols dpkg-gensymbols -q -p${library} -v${PROJECT_VERSION} -O${symbols})
foreach(name IN LISTS libraries)
  list(APPEND gensymbols -e${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/lib${name}.so.${PROJECT_VERSION_MAJOR})
endforeach()
file(CONFIGURE OUTPUT packaging/Symbols.cmake
     CONTENT "execute_process(COMMAND @gensymbols@ COMMAND_ERROR_IS_FATAL ANY)\n" @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/packaging/Symbols.cmake)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers ${symbols})
catalog_languages(${PROJECT_SOURCE_DIR}/src/resources/catalog languages)
list(LENGTH languages languageCount)
math(EXPR languageCount "${languageCount} + 1")  # English
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "live settings dialog for projectors
A dialog with a tab per group of settings, every value read live from a
projector and every change sent at once, for applications that manage
projectors. With its texts in ${languageCount} languages.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libadvancedcontrol-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library} (= ${version}), qt6-base-dev (>= 6.4)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "live settings dialog for projectors (development files)
A dialog with a tab per group of settings, every value read live from a
projector and every change sent at once. This package holds the headers
and the files for CMake.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME advanced-control)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
# The plugin for monitoring is a script.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${library} (= ${version}), python3:any")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS
    "qt6-translations-l10n, qt6-wayland, fonts-dejavu-core | fonts-noto-core, fonts-noto-cjk | fonts-wqy-microhei")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "read and change the settings of projectors
A list of projectors, and for each of them a dialog with a tab per group of
settings, every value read live and every change sent at once. A log shows
each command and its result.")

set(CPACK_DEBIAN_BRIDGE_PACKAGE_NAME advanced-control-bridge)
set(CPACK_DEBIAN_BRIDGE_PACKAGE_SECTION net)
set(CPACK_DEBIAN_BRIDGE_PACKAGE_DEPENDS "${library} (= ${version})")
set(CPACK_DEBIAN_BRIDGE_PACKAGE_SUGGESTS "mosquitto, prometheus, prometheus-alertmanager")
set(control ${PROJECT_SOURCE_DIR}/packaging/bridge)
set(CPACK_DEBIAN_BRIDGE_PACKAGE_CONTROL_EXTRA
    ${control}/conffiles ${control}/postinst ${control}/prerm ${control}/postrm)
set(CPACK_COMPONENT_BRIDGE_DESCRIPTION "tell metrics stores and message brokers about projectors
Watches projectors, serves metrics with alerts, and sends states to an MQTT
broker with discovery messages for home automation. Takes commands if they
are allowed.")

foreach(component library development program bridge)
  string(TOUPPER ${component} upper)
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  install(FILES packaging/copyright DESTINATION ${documents} COMPONENT ${component})
  install_compressed(changelog ${documents}/changelog.Debian.gz ${component})
endforeach()
include(CPack)
