# Installs both libraries with their headers, an exported CMake package
# (find_package(Mosaic) gives Mosaic::globkit and Mosaic::mosaic, and Mosaic::testkit
# where GoogleTest is found) and a pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS globkit mosaic EXPORT MosaicTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY toolkit/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mosaic/toolkit FILES_MATCHING PATTERN "*.h" PATTERN testkit EXCLUDE)
install(DIRECTORY mosaic/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mosaic FILES_MATCHING PATTERN "*.h")
install(EXPORT MosaicTargets NAMESPACE Mosaic:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Mosaic)

# The test kit has a package file of its own, which the package config reads only
# when the application's machine has GoogleTest too.
if(TARGET testkit)
  install(TARGETS testkit testkit_main EXPORT MosaicTestkitTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(DIRECTORY toolkit/testkit/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mosaic/toolkit/testkit FILES_MATCHING PATTERN "*.h")
  install(EXPORT MosaicTestkitTargets NAMESPACE Mosaic:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Mosaic)
endif()

configure_package_config_file(cmake/MosaicConfig.cmake.in ${CMAKE_BINARY_DIR}/MosaicConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Mosaic)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/MosaicConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/MosaicConfig.cmake ${CMAKE_BINARY_DIR}/MosaicConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Mosaic)

configure_file(cmake/mosaic.pc.in ${CMAKE_BINARY_DIR}/mosaic.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/mosaic.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/mosaic)
