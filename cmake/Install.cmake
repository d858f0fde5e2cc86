# What `cmake --install` gives: libraries and headers, two CMake packages, and one pkg-config module per library. None of
# them names a place outside the prefix, which may be moved, nor a package that the libraries use inside.
#
# Each belongs to one of three components, which become packages: `runtime`, `development` and `tool`.
include(CMakePackageConfigHelpers)

# Libraries with their headers, as the export set that the CMake package exports.
function(install_libraries export)
  install(TARGETS ${ARGN} EXPORT ${export}
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    FILE_SET HEADERS COMPONENT development)
endfunction()

# The CMake package of that name, which gives the targets in `export` their namespace.
function(install_package name export namespace)
  set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
  install(EXPORT ${export} NAMESPACE ${namespace}:: DESTINATION ${folder} COMPONENT development)
  configure_package_config_file(cmake/${name}Config.cmake.in ${name}Config.cmake INSTALL_DESTINATION ${folder})
  write_basic_package_version_file(${name}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake ${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake
    DESTINATION ${folder} COMPONENT development)
endfunction()

function(install_pkgconfig module library description requires)
  file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  configure_file(cmake/pkgconfig.pc.in ${module}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${module}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
endfunction()

if(NOT DXMD_SYSTEM_PLATFORM)
  install_libraries(TRNTargets trn trnidom)
  install_package(TRN TRNTargets TRN)
  install_pkgconfig(trn-core TRNCore "Text, locks and assertion errors" "")
  install_pkgconfig(trn-idom TRNIDOM "Handles to XML documents" "trn-core = ${PROJECT_VERSION}")
  set(platform_modules "trn-idom = ${PROJECT_VERSION}, trn-core = ${PROJECT_VERSION}")
endif()

install_libraries(DXMDTargets dxmd_actionhelper)
install_package(DXMD_ActionHelper DXMDTargets DXMD)
install_pkgconfig(dxmd-actionhelper DXMD_ActionHelper "${PROJECT_DESCRIPTION}" "${platform_modules}")

if(DXMD_BUILD_TOOL)
  install(TARGETS dxmd RUNTIME COMPONENT tool)
  get_target_property(pages dxmd BINARY_DIR)
  install(FILES ${pages}/dxmd.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  install(FILES ${pages}/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME dxmd
    COMPONENT tool)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/share/dxmd/schemas DESTINATION ${CMAKE_INSTALL_DATADIR}/dxmd COMPONENT tool)
endif()
