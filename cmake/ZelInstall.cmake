# What an installed copy is made of, in three components: runtime (the library and its theme), development (headers,
# CMake package, pkg-config module) and tools (the example programs, see ZelProgram.cmake).
include(CMakePackageConfigHelpers)
include(ZelPkgConfig)

set(ZEL_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZelCommonView)
set(ZEL_THEMES_DIR ${CMAKE_INSTALL_DATADIR}/ZelCommonView/Themes)

install(
  TARGETS ZelCommonView
  EXPORT ZelCommonViewTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/themes/ DESTINATION ${ZEL_THEMES_DIR} COMPONENT runtime)

install(EXPORT ZelCommonViewTargets NAMESPACE ZelCommonView:: DESTINATION ${ZEL_PACKAGE_DIR} COMPONENT development)
configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/ZelCommonViewConfig.cmake.in ZelCommonViewConfig.cmake
  INSTALL_DESTINATION ${ZEL_PACKAGE_DIR}
  PATH_VARS ZEL_THEMES_DIR)
# A later minor version keeps what an earlier one has; the next major version is another library.
write_basic_package_version_file(ZelCommonViewConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(
  FILES ${CMAKE_CURRENT_BINARY_DIR}/ZelCommonViewConfig.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/ZelCommonViewConfigVersion.cmake
  DESTINATION ${ZEL_PACKAGE_DIR}
  COMPONENT development)

zel_write_pkgconfig(${CMAKE_CURRENT_BINARY_DIR}/ZelCommonView.pc)
install(
  FILES ${CMAKE_CURRENT_BINARY_DIR}/ZelCommonView.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)
