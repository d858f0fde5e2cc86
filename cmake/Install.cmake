# What `cmake --install` gives: libraries and headers.
install(TARGETS trn trnidom dxmd_actionhelper FILE_SET HEADERS)
