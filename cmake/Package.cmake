# The zip for users: one folder with both programs, their help and a readme. All names in it
# are ASCII, so that every program unpacks them correctly.

# Notepad recognises UTF-8 by this mark, and before Windows 10 1809 showed no bare line feeds.
string(ASCII 239 187 191 BYTE_ORDER_MARK)
set(VELMORA_README ${PROJECT_BINARY_DIR}/package/Readme.txt)
configure_file(resources/Readme.txt.in ${VELMORA_README} @ONLY NEWLINE_STYLE CRLF)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME program)
install(TARGETS Velmora VelmoraText RUNTIME DESTINATION .)
install(DIRECTORY resources/help DESTINATION .)
install(FILES ${VELMORA_README} DESTINATION .)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME Velmora-${PROJECT_VERSION})
# The tests are a component too: tests/proof.
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL program)
set(CPACK_ARCHIVE_PROGRAM_FILE_NAME ${CPACK_PACKAGE_FILE_NAME})
set(VELMORA_PACKAGE ${PROJECT_BINARY_DIR}/${CPACK_PACKAGE_FILE_NAME}.zip)
# A folder without the version: unpacking a newer zip over it keeps the user's Conf.txt.
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_PACKAGING_INSTALL_PREFIX /Velmora)
include(CPack)
