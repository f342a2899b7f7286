# Keeps the arrows between the folders true: cmake -DRADICE=<sources> -P frecce.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/casa.cmake)

# What the standard library of C and C++ has, without the streams: the logic neither reads nor prints by itself.
set(standard "(algorithm|any|array|atomic|bit|bitset|cassert|cctype|cerrno|cfloat|charconv|chrono|cinttypes|\
climits|clocale|cmath|compare|complex|concepts|condition_variable|csignal|cstdarg|cstddef|cstdint|cstdio|cstdlib|\
cstring|ctime|cwchar|deque|exception|forward_list|functional|future|initializer_list|iterator|limits|list|locale|\
map|memory|memory_resource|mutex|new|numbers|numeric|optional|queue|random|ranges|ratio|regex|set|shared_mutex|\
source_location|span|stack|stdexcept|string|string_view|system_error|thread|tuple|type_traits|typeindex|typeinfo|\
unordered_map|unordered_set|utility|valarray|variant|vector|version)")
set(flussi "(filesystem|fstream|iomanip|ios|iosfwd|iostream|istream|ostream|sstream|stdlib\\.h|streambuf)")

set(errori 0)
foreach(stanza ${AMBRA_STANZE} qt ambra desktop)
  set(ammessi "${standard}")
  if(stanza MATCHES "^(qt|ambra|desktop|fatturapa)$")
    set(ammessi "${ammessi}|${flussi}")
  endif()
  if(esterni_${stanza})
    set(ammessi "${ammessi}|${esterni_${stanza}}")
  endif()
  file(GLOB_RECURSE sorgenti ${RADICE}/${stanza}/*.h ${RADICE}/${stanza}/*.cpp)
  foreach(sorgente ${sorgenti})
    file(STRINGS ${sorgente} inclusi REGEX "^#include ")
    file(RELATIVE_PATH dove ${RADICE} ${sorgente})
    foreach(riga ${inclusi})
      if(riga MATCHES "^#include *\"([a-z]+)/")
        set(verso ${CMAKE_MATCH_1})
        if(NOT verso STREQUAL stanza AND NOT verso IN_LIST usa_${stanza})
          message("${dove}: ${riga}: ${stanza}/ may not use ${verso}/")
          math(EXPR errori "${errori} + 1")
        endif()
      elseif(riga MATCHES "^#include *<" AND NOT riga MATCHES "^#include *<(${ammessi})>"
             AND NOT dove MATCHES "_(posix|windows)\\.(h|cpp)$")
        message("${dove}: ${riga}: not a header of this room")
        math(EXPR errori "${errori} + 1")
      endif()
    endforeach()
  endforeach()
endforeach()

# No screen writes a record past the archive's room: what does stands in the list.
set(scrivono "ledger/(registrazione|quote)\\.cpp|suppliers/ordinamento\\.cpp")
foreach(stanza ledger suppliers invoices worklist reports forms maintenance)
  file(GLOB sorgenti RELATIVE ${RADICE} ${RADICE}/${stanza}/*.cpp)
  foreach(sorgente ${sorgenti})
    if(sorgente MATCHES "^(${scrivono})$")
      continue()
    endif()
    file(READ ${RADICE}/${sorgente} testo)
    if(testo MATCHES "scrivi(_campo)?\\(([a-z_]+\\.)?arc\\.|arc\\.[a-z0-9]+\\.scrivi|Scrittura<")
      message("${sorgente}: ${CMAKE_MATCH_0}: records are written by archivio/ alone")
      math(EXPR errori "${errori} + 1")
    endif()
  endforeach()
endforeach()
if(errori GREATER 0)
  message(FATAL_ERROR "${errori} arrows point the wrong way")
endif()
