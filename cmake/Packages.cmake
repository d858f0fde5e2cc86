# What CPack makes of the components that cmake/Install.cmake installs: a Debian package of each, and one archive of them
# all. scripts/package builds for either and runs it.
set(CPACK_PACKAGE_NAME dxmd-actionhelper)
set(CPACK_PACKAGE_VENDOR "DXMD ActionHelper maintainers")
set(CPACK_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR} <maintainers@dxmd-actionhelper.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-${CMAKE_LIBRARY_ARCHITECTURE})
set(CPACK_COMPONENTS_ALL runtime development tool)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packages/prepare.cmake)
set(CPACK_DXMD_PACKAGING ${PROJECT_SOURCE_DIR}/cmake/packages)
set(CPACK_DXMD_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)

# Both histories name the version that is built.
foreach(file CHANGELOG.md cmake/packages/changelog)
  file(STRINGS ${file} newest REGEX "^(## \\[|dxmd-actionhelper \\()[0-9]" LIMIT_COUNT 1)
  if(NOT newest MATCHES "[[(]${PROJECT_VERSION}[]-]")
    message(FATAL_ERROR "${file} begins with \"${newest}\", and this is version ${PROJECT_VERSION}")
  endif()
endforeach()
string(REGEX MATCH "-([^-)]+)\\)" ignored "${newest}")
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE ${CPACK_PACKAGE_NAME})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# The package is named after the library that programs link; the two under it have its version and go with it.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libdxmd-actionhelper${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libdxmd-actionhelper-dev)
set(CPACK_DEBIAN_TOOL_PACKAGE_NAME dxmd)

# CPack has a variable for Multi-Arch from 3.31 on only. With it the libraries of both word sizes stand side by side.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION "libs\nMulti-Arch: same")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel\nMulti-Arch: same")
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION "text\nMulti-Arch: foreign")

# The dynamic linker's cache is renewed when the libraries come and go.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CPACK_DXMD_PACKAGING}/triggers)

# What other programs need of the libraries, they need of this version or a later one.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_TOOL_DEPENDS runtime)
# Where dpkg-shlibdeps finds the libraries that dxmd needs.
foreach(library trn trnidom dxmd_actionhelper)
  get_target_property(folder ${library} BINARY_DIR)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${folder})
endforeach()

set(about "\
DXMD ActionHelper makes and reads the XML documents that pass between a
metadata-modelling client and its query framework, query service and query
engine, and those of the modelling tool's own actions.
.
")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "messages of a metadata-modelling client (libraries)
${about}This package has what programs need that use the library: the library and,
under it, the platform libraries for text and XML documents.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "messages of a metadata-modelling client (development files)
${about}This package has what building such a program needs: headers, CMake packages
and pkg-config modules.")
set(CPACK_DEBIAN_TOOL_DESCRIPTION "messages of a metadata-modelling client (command line)
${about}This package has the command line: it turns JSON into messages and messages
into JSON, for looking into an exchange or scripting one.")

include(CPack)
