# Read by cpack for each kind of package: what goes into it, and what it is called.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};Tessoro;ALL;/;${build};Tessoro;debian;/")
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};Tessoro;portable;/")
  set(CPACK_PACKAGE_FILE_NAME tessoro-${CPACK_PACKAGE_VERSION}-${CPACK_TESSORO_SYSTEM})
endif()
