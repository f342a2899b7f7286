# Windows 10 and later; its header files without what clashes with names of ours.
target_compile_definitions(ambra_opzioni INTERFACE _WIN32_WINNT=0x0A00 UNICODE _UNICODE NOMINMAX
                           WIN32_LEAN_AND_MEAN)

# A static library does not tell what it stands on.
find_package(ZLIB REQUIRED)
set_property(TARGET LibArchive::LibArchive APPEND PROPERTY INTERFACE_COMPILE_DEFINITIONS LIBARCHIVE_STATIC)
set_property(TARGET LibArchive::LibArchive APPEND PROPERTY INTERFACE_LINK_LIBRARIES ZLIB::ZLIB bcrypt)
set_property(TARGET OpenSSL::Crypto APPEND PROPERTY INTERFACE_LINK_LIBRARIES ws2_32 crypt32)
if(TARGET xlsxwriter)
  set_property(TARGET xlsxwriter APPEND PROPERTY INTERFACE_LINK_LIBRARIES ZLIB::ZLIB)
endif()

# What Windows shows of a program: icon, version, manifest; the icon is drawn by scripts/icone.
enable_language(RC)
function(ambra_risorse programma descrizione)
  configure_file(${CMAKE_SOURCE_DIR}/pacchetto/windows/programma.rc.in ${CMAKE_BINARY_DIR}/${programma}.rc @ONLY)
  target_sources(${programma} PRIVATE ${CMAKE_BINARY_DIR}/${programma}.rc)
  set_property(SOURCE ${CMAKE_BINARY_DIR}/${programma}.rc TARGET_DIRECTORY ${programma} PROPERTY OBJECT_DEPENDS
               "${CMAKE_SOURCE_DIR}/pacchetto/windows/kit-ambra.ico;${CMAKE_SOURCE_DIR}/pacchetto/windows/programma.manifest")
endfunction()
