include(CMakePackageConfigHelpers)

install(TARGETS ORVAPlatform ORVAChart ORVAUtil EXPORT ORVAUtilTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ORVAUtil
  FILES_MATCHING PATTERN "*.h"
  PATTERN "*Internal.h" EXCLUDE)
install(EXPORT ORVAUtilTargets NAMESPACE ORVAUtil:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ORVAUtil)

configure_package_config_file(cmake/ORVAUtilConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/ORVAUtilConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ORVAUtil)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ORVAUtilConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ORVAUtilConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/ORVAUtilConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ORVAUtil)

# How far the pkg-config folder lies below the prefix, as a path that climbs back up.
file(RELATIVE_PATH ORVA_PC_TO_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/orvautil.pc.in ${CMAKE_CURRENT_BINARY_DIR}/orvautil.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orvautil.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
