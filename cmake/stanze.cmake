# A room: the static library of a folder, with the rooms that it may use.
function(ambra_stanza nome)
  file(GLOB sorgenti CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${nome}/*.cpp ${CMAKE_SOURCE_DIR}/${nome}/*.h)
  add_library(stanza_${nome} STATIC ${sorgenti})
  target_link_libraries(stanza_${nome} PUBLIC ambra_opzioni)
  foreach(sotto ${ARGN})
    target_link_libraries(stanza_${nome} PUBLIC stanza_${sotto})
  endforeach()
endfunction()
