include(CMakePackageConfigHelpers)

set(ZEL_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZelCommonView)

install(
  TARGETS ZelCommonView
  EXPORT ZelCommonViewTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT ZelCommonViewTargets NAMESPACE ZelCommonView:: DESTINATION ${ZEL_PACKAGE_DIR})

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZelCommonViewConfig.cmake.in ZelCommonViewConfig.cmake
                              INSTALL_DESTINATION ${ZEL_PACKAGE_DIR})
write_basic_package_version_file(ZelCommonViewConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ZelCommonViewConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/ZelCommonViewConfigVersion.cmake DESTINATION ${ZEL_PACKAGE_DIR})

configure_file(${CMAKE_CURRENT_LIST_DIR}/ZelCommonView.pc.in ZelCommonView.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ZelCommonView.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/themes/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ZelCommonView/Themes)
