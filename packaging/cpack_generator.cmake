# Which files go into which package.
if(CPACK_GENERATOR STREQUAL DEB)
    set(CPACK_COMPONENTS_ALL system)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
    set(CPACK_COMPONENTS_ALL portable)
    set(CPACK_PACKAGE_FILE_NAME ZRVClient-${CPACK_PACKAGE_VERSION})
    # Unpacked it is one folder, not thirty files among the user's own.
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
