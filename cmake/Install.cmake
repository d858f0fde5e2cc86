# What `cmake --install` gives: libraries and headers, two CMake packages, and one pkg-config module per library. None of
# them names a place outside the prefix, which may be moved, nor a package that the libraries use inside.
include(CMakePackageConfigHelpers)

# The CMake package of that name, which gives the targets in `export` their namespace.
function(install_package name export namespace)
  set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
  install(EXPORT ${export} NAMESPACE ${namespace}:: DESTINATION ${folder})
  configure_package_config_file(cmake/${name}Config.cmake.in ${name}Config.cmake INSTALL_DESTINATION ${folder})
  write_basic_package_version_file(${name}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake ${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake
    DESTINATION ${folder})
endfunction()

function(install_pkgconfig module library description requires)
  file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  configure_file(cmake/pkgconfig.pc.in ${module}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${module}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

if(NOT DXMD_SYSTEM_PLATFORM)
  install(TARGETS trn trnidom EXPORT TRNTargets FILE_SET HEADERS)
  install_package(TRN TRNTargets TRN)
  install_pkgconfig(trn-core TRNCore "Text, locks and assertion errors" "")
  install_pkgconfig(trn-idom TRNIDOM "Handles to XML documents" "trn-core = ${PROJECT_VERSION}")
  set(platform_modules "trn-idom = ${PROJECT_VERSION}, trn-core = ${PROJECT_VERSION}")
endif()

install(TARGETS dxmd_actionhelper EXPORT DXMDTargets FILE_SET HEADERS)
install_package(DXMD_ActionHelper DXMDTargets DXMD)
install_pkgconfig(dxmd-actionhelper DXMD_ActionHelper "${PROJECT_DESCRIPTION}" "${platform_modules}")

if(DXMD_BUILD_TOOL)
  install(TARGETS dxmd)
  get_target_property(pages dxmd BINARY_DIR)
  install(FILES ${pages}/dxmd.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${pages}/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME dxmd)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/share/dxmd/schemas DESTINATION ${CMAKE_INSTALL_DATADIR}/dxmd)
endif()
