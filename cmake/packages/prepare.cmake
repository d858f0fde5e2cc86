# Run by CPack when the files of a package are in place and not yet packed.
file(GLOB components RELATIVE ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_TEMPORARY_DIRECTORY}/*)

# gzip as the Debian policy has it: its best, without a time.
function(compress file)
  execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Programs and libraries as dh_strip leaves them.
file(GLOB_RECURSE binaries ${CPACK_TEMPORARY_DIRECTORY}/bin/* ${CPACK_TEMPORARY_DIRECTORY}/tool/usr/bin/*
  ${CPACK_TEMPORARY_DIRECTORY}/*.so.*)
foreach(binary IN LISTS binaries)
  if(NOT IS_SYMLINK ${binary})
    execute_process(COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note ${binary}
      COMMAND_ERROR_IS_FATAL ANY)
  endif()
endforeach()

if(CPACK_GENERATOR STREQUAL "DEB")
  foreach(component IN LISTS components)
    string(TOUPPER ${component} name)
    set(package ${CPACK_DEBIAN_${name}_PACKAGE_NAME})
    set(share ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share)
    set(doc ${share}/doc/${package})

    file(COPY ${CPACK_DXMD_PACKAGING}/copyright DESTINATION ${doc})
    configure_file(${CPACK_DXMD_CHANGELOG} ${doc}/changelog COPYONLY)
    configure_file(${CPACK_DXMD_PACKAGING}/changelog ${doc}/changelog.Debian COPYONLY)
    compress(${doc}/changelog)
    compress(${doc}/changelog.Debian)

    if(EXISTS ${CPACK_DXMD_PACKAGING}/${component}.lintian-overrides)
      configure_file(${CPACK_DXMD_PACKAGING}/${component}.lintian-overrides ${share}/lintian/overrides/${package} COPYONLY)
    endif()

    file(GLOB_RECURSE pages ${share}/man/*)
    foreach(page IN LISTS pages)
      compress(${page})
    endforeach()
  endforeach()
endif()

# What was installed carries the time of its installation, and the next build shall give the same bytes.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch -hd @$ENV{SOURCE_DATE_EPOCH} {} +
    COMMAND_ERROR_IS_FATAL ANY)
endif()
