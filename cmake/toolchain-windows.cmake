# What both Windows toolchains share; the file that includes this one has set `triplet`.
set(CMAKE_SYSTEM_NAME Windows)
# The win32-thread variant: the other one's runtime imports what Windows 95 lacks.
set(CMAKE_C_COMPILER ${triplet}-gcc-win32)
set(CMAKE_CXX_COMPILER ${triplet}-g++-win32)
set(CMAKE_RC_COMPILER ${triplet}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
