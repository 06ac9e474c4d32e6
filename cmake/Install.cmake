# Installs both libraries with their headers, an exported CMake package
# (find_package(Mosaic) gives Mosaic::globkit and Mosaic::mosaic) and a pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS globkit mosaic EXPORT MosaicTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY toolkit/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mosaic/toolkit FILES_MATCHING PATTERN "*.h")
install(DIRECTORY mosaic/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mosaic FILES_MATCHING PATTERN "*.h")
install(EXPORT MosaicTargets NAMESPACE Mosaic:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Mosaic)

configure_package_config_file(cmake/MosaicConfig.cmake.in ${CMAKE_BINARY_DIR}/MosaicConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Mosaic)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/MosaicConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/MosaicConfig.cmake ${CMAKE_BINARY_DIR}/MosaicConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Mosaic)

configure_file(cmake/mosaic.pc.in ${CMAKE_BINARY_DIR}/mosaic.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/mosaic.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/mosaic)
