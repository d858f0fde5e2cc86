# Tests of another run may be writing into the folder: they go on in the one that is moved away.
if(EXISTS ${FOLDER})
  string(RANDOM LENGTH 12 unique)
  file(RENAME ${FOLDER} ${FOLDER}.${unique})
  file(REMOVE_RECURSE ${FOLDER}.${unique})
endif()
file(MAKE_DIRECTORY ${FOLDER})
