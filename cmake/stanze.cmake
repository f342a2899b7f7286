# What only one platform has bears its name: disco_posix.cpp, disco_windows.cpp.
if(WIN32)
  set(altra_piattaforma posix)
else()
  set(altra_piattaforma windows)
endif()

# A room: the static library of a folder, with the rooms that it may use.
function(ambra_stanza nome)
  file(GLOB sorgenti CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${nome}/*.cpp ${CMAKE_SOURCE_DIR}/${nome}/*.h)
  list(FILTER sorgenti EXCLUDE REGEX "_${altra_piattaforma}\\.(cpp|h)$")
  add_library(stanza_${nome} STATIC ${sorgenti})
  target_link_libraries(stanza_${nome} PUBLIC ambra_opzioni)
  foreach(sotto ${ARGN})
    target_link_libraries(stanza_${nome} PUBLIC stanza_${sotto})
  endforeach()
endfunction()
