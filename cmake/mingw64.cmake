# Windows, 64 bit, from Debian: the cross compiler, and the libraries that scripts/setup windows has built for it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triade x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triade}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triade}-g++-posix)
set(CMAKE_RC_COMPILER ${triade}-windres)

if(DEFINED ENV{XDG_CACHE_HOME})
  set(AMBRA_MINGW $ENV{XDG_CACHE_HOME}/kit-ambra/mingw64/prefisso)
else()
  set(AMBRA_MINGW $ENV{HOME}/.cache/kit-ambra/mingw64/prefisso)
endif()

# Libraries and headers of the building machine are never taken; its programs are.
set(CMAKE_FIND_ROOT_PATH ${AMBRA_MINGW} /usr/${triade})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# One program file that needs no other.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s")
set(OPENSSL_USE_STATIC_LIBS ON)
