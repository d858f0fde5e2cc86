# The target `reference`: Doxygen's pages of every installed header and of the documents beside them, in docs/html of the
# build folder, and of what another platform must offer, in docs/contract/html. A name without a docstring is an error,
# and so is any other warning.
if(DXMD_SYSTEM_PLATFORM)
  return()
endif()
find_package(Doxygen 1.9.4 QUIET)
if(NOT DOXYGEN_FOUND)
  return()
endif()

foreach(library IN ITEMS trn trnidom dxmd_actionhelper)
  get_target_property(headers ${library} HEADER_SET)
  list(APPEND reference_headers ${headers})
endforeach()
file(GLOB_RECURSE reference_pages ${PROJECT_SOURCE_DIR}/docs/*.md)
file(GLOB reference_readmes
  ${PROJECT_SOURCE_DIR}/*.md ${PROJECT_SOURCE_DIR}/*/README.md ${PROJECT_SOURCE_DIR}/platform/*/README.md)

set(DOXYGEN_OUTPUT_DIRECTORY docs)
set(DOXYGEN_GENERATE_XML YES)  # for scripts/reference
set(DOXYGEN_HAVE_DOT NO)       # the same pages whatever else is installed
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE ${PROJECT_SOURCE_DIR}/README.md)
set(DOXYGEN_STRIP_FROM_PATH ${PROJECT_SOURCE_DIR})
set(DOXYGEN_STRIP_FROM_INC_PATH ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/platform)

configure_file(cmake/links.sed.in links.sed @ONLY)
set(DOXYGEN_FILTER_PATTERNS "*.md=sed -E -f ${CMAKE_CURRENT_BINARY_DIR}/links.sed")

set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_SORT_MEMBER_DOCS NO)
set(DOXYGEN_BUILTIN_STL_SUPPORT YES)
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED DXMD_API= TRN_API= TRNIDOM_API=)
set(DOXYGEN_EXCLUDE_SYMBOLS trn_detail* trnidom_detail*)

set(DOXYGEN_QUIET YES)
set(DOXYGEN_WARN_IF_INCOMPLETE_DOC YES)  # of all parameters or of none
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)

doxygen_add_docs(reference ${reference_readmes} ${reference_pages} ${reference_headers}
  COMMENT "Building the reference")

# The contract's classes have the names of those above, and so pages of their own.
set(DOXYGEN_PROJECT_NAME "${PROJECT_NAME}: contract of the platform")
set(DOXYGEN_OUTPUT_DIRECTORY docs/contract)
set(DOXYGEN_STRIP_FROM_INC_PATH ${PROJECT_SOURCE_DIR}/platform/contract)
set(DOXYGEN_RECURSIVE YES)
set(DOXYGEN_FILE_PATTERNS *.h)
unset(DOXYGEN_USE_MDFILE_AS_MAINPAGE)
doxygen_add_docs(reference_contract ${PROJECT_SOURCE_DIR}/platform/contract COMMENT "Building the contract's reference")
add_dependencies(reference reference_contract)
