# Run by a test: fails when a text that the sources under SOURCES say through tr lacks its translation in one of the
# files of TRADUCTIONS, or a file translates what nobody says. FICHIERS is a folder for copies.
#   cmake -DLUPDATE=... -DSOURCES=... -DTRADUCTIONS=... -DFICHIERS=... -P Traductions.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${FICHIERS})
file(GLOB traductions ${TRADUCTIONS}/*.ts)
if(NOT traductions)
  message(FATAL_ERROR "No translation under ${TRADUCTIONS}")
endif()
foreach(traduction IN LISTS traductions)
  file(COPY ${traduction} DESTINATION ${FICHIERS})
  cmake_path(GET traduction FILENAME nom)
  # French is what the sources speak: its file has plurals to tell, nothing else.
  if(nom MATCHES "_fr\\.ts$")
    set(mesure -pluralonly)
  else()
    set(mesure "")
  endif()
  execute_process(COMMAND ${LUPDATE} ${mesure} -silent -locations none -I ${SOURCES}/.. ${SOURCES} -ts ${FICHIERS}/${nom}
    COMMAND_ERROR_IS_FATAL ANY)
  file(STRINGS ${FICHIERS}/${nom} manques REGEX "<source>|type=\"(unfinished|vanished|obsolete)\"")
  set(texte "")
  foreach(ligne IN LISTS manques)
    if(ligne MATCHES "<source>")
      set(texte ${ligne})
    elseif(ligne MATCHES "type=")
      string(REGEX REPLACE ".*type=\"([a-z]+)\".*" "\\1" etat ${ligne})
      message(SEND_ERROR "${nom}, ${etat}: ${texte}")
    endif()
  endforeach()
endforeach()
