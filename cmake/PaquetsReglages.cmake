# Read by cpack once a generator: which component goes into which kind of package.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(composant systeme)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(composant portable)
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 construction)
set(CPACK_INSTALL_CMAKE_PROJECTS "${construction};VarloTour;${composant};/")
