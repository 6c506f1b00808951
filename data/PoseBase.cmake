# Copies the base ORIGINALE to POSEE when nothing is there, or when what is there has not been written to since the
# copy. Any other file is somebody's and stays.
set(empreinte ${ORIGINALE}.posee)
file(SHA256 ${ORIGINALE} neuve)
set(derniere "")
if(EXISTS ${empreinte})
  file(READ ${empreinte} derniere)
endif()

if(EXISTS ${POSEE})
  file(SHA256 ${POSEE} presente)
  if(presente STREQUAL neuve OR (derniere STREQUAL neuve))
    return()
  endif()
  if(NOT presente STREQUAL derniere OR EXISTS ${POSEE}-wal)
    message("${POSEE} has been used and is kept as it is; move it away to start from the new base.")
    return()
  endif()
endif()

# A log left beside a base that is gone must not be replayed into the new one.
file(REMOVE ${POSEE}-wal ${POSEE}-shm)
file(COPY_FILE ${ORIGINALE} ${POSEE}.nouveau)
file(RENAME ${POSEE}.nouveau ${POSEE})
file(WRITE ${empreinte} ${neuve})
