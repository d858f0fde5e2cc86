# What `cmake --install` gives: libraries and headers, a CMake package and one pkg-config module per library. None of
# them names a place outside the prefix, which may be moved, nor a package that the libraries use inside.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/DXMD_ActionHelper)
install(TARGETS trn trnidom EXPORT TRNTargets FILE_SET HEADERS)
install(TARGETS dxmd_actionhelper EXPORT DXMDTargets FILE_SET HEADERS)
install(EXPORT TRNTargets NAMESPACE TRN:: DESTINATION ${package_dir})
install(EXPORT DXMDTargets NAMESPACE DXMD:: DESTINATION ${package_dir})

configure_package_config_file(cmake/DXMD_ActionHelperConfig.cmake.in DXMD_ActionHelperConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(DXMD_ActionHelperConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/DXMD_ActionHelperConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/DXMD_ActionHelperConfigVersion.cmake
  DESTINATION ${package_dir})

function(install_pkgconfig module library description requires)
  file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  configure_file(cmake/pkgconfig.pc.in ${module}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${module}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
install_pkgconfig(trn-core TRNCore "Text, locks and assertion errors" "")
install_pkgconfig(trn-idom TRNIDOM "Handles to XML documents" "trn-core = ${PROJECT_VERSION}")
install_pkgconfig(dxmd-actionhelper DXMD_ActionHelper "${PROJECT_DESCRIPTION}"
  "trn-idom = ${PROJECT_VERSION}, trn-core = ${PROJECT_VERSION}")
