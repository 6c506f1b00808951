# Run by a test: fails on an include that goes upwards, so that no cycle between folders can arise.
#   cmake -DSOURCES=<folder of the layers> -P Couches.cmake
cmake_minimum_required(VERSION 3.25)

# Each folder may include those before it, whatever their layer.
set(ordre
  core/store core/donnees core/partage core/garde core/engine core/imports
  platform/socle platform/aspect platform/son platform/grille platform/papier platform/fenetres)
# A family of forms may include the core, the platform and the names of the forms, and of the other families only what is
# named here: lists and tools print. `app` makes all forms, so it may include them all and none includes it.
set(permis_registration printing)
set(permis_outils printing)

set(fautes "")

# Whether the folder `depuis` may include the folder `vers`.
function(juge depuis vers reponse)
  list(FIND ordre ${depuis} place)
  list(FIND ordre ${vers} place_vers)
  if(depuis STREQUAL vers)
    set(bon TRUE)
  elseif(depuis MATCHES "^forms/(.+)")
    set(famille ${CMAKE_MATCH_1})
    string(REGEX REPLACE "^forms/" "" autre ${vers})
    if(NOT place_vers EQUAL -1 OR famille STREQUAL "app" OR autre STREQUAL "noms" OR autre IN_LIST permis_${famille})
      set(bon TRUE)
    else()
      set(bon FALSE)
    endif()
  elseif(NOT place EQUAL -1 AND NOT place_vers EQUAL -1 AND place_vers LESS place)
    set(bon TRUE)
  else()
    set(bon FALSE)
  endif()
  set(${reponse} ${bon} PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE fichiers RELATIVE ${SOURCES} ${SOURCES}/core/*.h ${SOURCES}/core/*.cpp ${SOURCES}/platform/*.h
  ${SOURCES}/platform/*.cpp ${SOURCES}/forms/*.h ${SOURCES}/forms/*.cpp)
if(NOT fichiers)
  message(FATAL_ERROR "No source under ${SOURCES}")
endif()
foreach(fichier IN LISTS fichiers)
  string(REGEX MATCH "^[^/]+/[^/]+" depuis ${fichier})
  file(STRINGS ${SOURCES}/${fichier} lignes REGEX "^#include \"")
  foreach(ligne IN LISTS lignes)
    string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" cible ${ligne})
    if(NOT cible MATCHES "/")
      if(NOT cible MATCHES "^ui_")
        list(APPEND fautes "${fichier} includes ${cible} without its folder")
      endif()
      continue()
    endif()
    set(vers "")
    foreach(couche core platform forms)
      if(EXISTS ${SOURCES}/${couche}/${cible})
        string(REGEX MATCH "^[^/]+/[^/]+" vers ${couche}/${cible})
      endif()
    endforeach()
    if(NOT vers)
      list(APPEND fautes "${fichier} includes ${cible}, which no layer has")
      continue()
    endif()
    juge(${depuis} ${vers} bon)
    if(NOT bon)
      list(APPEND fautes "${fichier}: ${depuis} may not include ${vers} (${cible})")
    endif()
  endforeach()
endforeach()

if(fautes)
  list(JOIN fautes "\n  " texte)
  message(FATAL_ERROR "Includes against the order of the folders:\n  ${texte}")
endif()
