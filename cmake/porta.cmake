# Keeps the door to the disk the only one: cmake -DRADICE=<sources> -P porta.cmake
#
# The archive is opened, made and renamed by core/disco_* alone: there are the locks, the retries, the count of
# what was refused. Outside of it stands only what works on other files, those of the list below.
cmake_minimum_required(VERSION 3.25)

set(ammessi
    "core/disco_[a-z_]+\\.(h|cpp)"       # the door
    "core/percorso\\.h"                  # names of files, none opened
    "ambra/archivio_compresso\\.cpp"     # the backup, where the user wants it
    "ambra/moduli/archivi\\.cpp"
    "ambra/moduli/fogli\\.cpp"           # a workbook on its way to the door
    "parti/modulo_posix\\.cpp"           # the program's own parts
    "ambra/pdf_batch\\.cpp"              # the folder of prints
    "ambra/comando_batch\\.cpp"          # the script
    "ambra/comando_demo\\.cpp"           # the folder of a new drive
    "ambra/comando_fatture\\.cpp"        # the downloads named on the command line
    "maintenance/copie_datate\\.cpp"     # dated copies, in the user's own folder
    "fatturapa/percorsi\\.(h|cpp)"       # their files
    "fatturapa/compresso\\.cpp"         # wrappers, in memory
    "desktop/manuale\\.cpp"              # the manual inside the program
    "desktop/scatta\\.cpp"               # a script
    "qt/((uscita|replica)\\.cpp|tiratura\\.(h|cpp))")  # prints
list(JOIN ammessi "|" ammessi)

set(fuori "(^|[^A-Za-z0-9_])(w?[io]?fstream|f(re|d)?open|_w?f?open|CreateFile[AW]?|Q(Save|Temporary)?File|\
std::filesystem|archive_(read|write)_open_(file|fd)[a-z_]*)[^A-Za-z0-9_]|<filesystem>|\
(^|[^A-Za-z0-9_>.])(::)?(open|openat|creat|mkdir|rename|unlink|mkstemp)\\(")

set(errori 0)
file(GLOB_RECURSE sorgenti RELATIVE ${RADICE} ${RADICE}/*.h ${RADICE}/*.cpp)
foreach(sorgente ${sorgenti})
  if(sorgente MATCHES "^(tests|bench|fuzz|build[^/]*)/" OR sorgente MATCHES "^(${ammessi})$")
    continue()
  endif()
  file(READ ${RADICE}/${sorgente} testo)
  if(testo MATCHES "${fuori}")
    string(STRIP "${CMAKE_MATCH_0}" parola)
    message("${sorgente}: ${parola}: files are opened by core/disco_* alone")
    math(EXPR errori "${errori} + 1")
  endif()
endforeach()
if(errori GREATER 0)
  message(FATAL_ERROR "${errori} files go round the door to the disk")
endif()
