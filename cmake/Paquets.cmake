# Two ways to deliver, one component each:
#   cmake --install build --prefix /usr/local             a system-wide installation, what the .deb holds
#   cmake --install build --component portable --prefix d  one folder with everything beside the program
# cpack makes the .deb of the first and the .tar.gz of the second.

set(originaux_poses ${CMAKE_BINARY_DIR}/base/VarloBase.mdb ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/drelin.WAV)
file(GLOB drapeaux CONFIGURE_DEPENDS data/icones/*.svg)
foreach(drapeau ${drapeaux})
  cmake_path(GET drapeau STEM numero)
  list(APPEND originaux_poses ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${numero}.ico)
endforeach()
set(manuel ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/docs)
set(papiers ${manuel}/manuel.html docs/carte-rapide.html)
file(GLOB images_manuel CONFIGURE_DEPENDS docs/images/*)
# A page for the browser, which shows its pictures and prints it; the links to them are the same. It stands beside the
# built program as it does in the portable folder.
add_custom_command(
  OUTPUT ${manuel}/manuel.html
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/docs/images ${manuel}/images
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/docs/exemples ${manuel}/exemples
  COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/docs/carte-rapide.html ${manuel}
  COMMAND creemanuel ${PROJECT_SOURCE_DIR}/docs/manuel.md ${manuel}/manuel.html
          "VarloTour : le manuel de l'organisateur"
  DEPENDS creemanuel docs/manuel.md docs/carte-rapide.html ${images_manuel}
  COMMENT "Making the manual's page"
  VERBATIM)
add_custom_target(manuel ALL DEPENDS ${manuel}/manuel.html)
set(bureau ${PROJECT_SOURCE_DIR}/packaging/bureau)

string(TIMESTAMP jour %Y-%m-%d UTC)
configure_file(${bureau}/fr.varlotour.VarloTour.metainfo.xml.in fr.varlotour.VarloTour.metainfo.xml @ONLY)

install(TARGETS VarloTour RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT systeme)
install(FILES ${originaux_poses} DESTINATION ${CMAKE_INSTALL_DATADIR}/varlotour COMPONENT systeme)
install(FILES ${papiers} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/varlotour COMPONENT systeme)
install(DIRECTORY docs/exemples docs/images DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/varlotour COMPONENT systeme)
install(FILES ${bureau}/fr.varlotour.VarloTour.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT systeme)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/fr.varlotour.VarloTour.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT systeme)
install(FILES src/platform/aspect/images/varlotour.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT systeme)

install(TARGETS VarloTour RUNTIME DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES ${originaux_poses} packaging/LISEZMOI.txt DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES ${papiers} DESTINATION docs COMPONENT portable EXCLUDE_FROM_ALL)
install(DIRECTORY docs/exemples docs/images DESTINATION docs COMPONENT portable EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PACKAGE_NAME varlotour)
set(CPACK_PACKAGE_VENDOR VarloTour)
set(CPACK_PACKAGE_CONTACT "VarloTour <contact@varlotour.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "pétanque competitions from the organiser's table")
set(CPACK_PACKAGE_DESCRIPTION
  "VarloTour registers the teams, draws the rounds, takes the scores from the
keyboard and prints the sheets to post. The competitions live in one encrypted
file, in the folder of each user.")
set(CPACK_PACKAGE_FILE_NAME VarloTour-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/paquets)
set(CPACK_STRIP_FILES ON)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/PaquetsReglages.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no library link tells: the display plugins and letters for screen and sheets. The rest is for comfort.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, fontconfig, fonts-dejavu-core, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, qt6-translations-l10n")
include(CPack)
