# What the targets of this project have in common.

# The language, warnings and sanitizers of every target.
function(dxmd_target_options target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${DXMD_WERROR}>:-Werror>)
  # RUNPATH, which LD_LIBRARY_PATH precedes, and not RPATH.
  target_link_options(${target} PRIVATE LINKER:--enable-new-dtags)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  # The same bytes wherever the tree stands. A debugger is better served with full names.
  target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
  set_target_properties(${target} PROPERTIES BUILD_RPATH_USE_ORIGIN ON)
  if(DXMD_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${DXMD_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${DXMD_SANITIZE})
  endif()
endfunction()

# A shared library with a name and version of its own; its headers are included as they are installed. The file
# exports.map beside its CMakeLists.txt lists what it exports.
function(dxmd_add_library target alias output)
  add_library(${target} SHARED)
  add_library(${alias} ALIAS ${target})
  string(REGEX REPLACE ".*::" "" export_name ${alias})
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${output} EXPORT_NAME ${export_name} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  dxmd_target_options(${target})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  # Calls within a library are not for others to redirect, and those into the next one, millions for a large document,
  # need no stub to be bound late.
  # Handles of two words are written word by word, and reading both with one vector instruction waits for both.
  target_compile_options(${target} PRIVATE -fno-semantic-interposition -fno-plt -fno-tree-slp-vectorize)
  # A sanitizer's own symbols are in the program, as clang has it, so that its libraries must leave them undefined.
  if(NOT DXMD_SANITIZE)
    set(exports ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
    target_link_options(${target} PRIVATE
      LINKER:--no-undefined LINKER:-Bsymbolic-functions LINKER:--version-script=${exports})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${exports})
  endif()
endfunction()
