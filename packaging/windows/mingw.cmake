# Builds for 64-bit Windows with Debian's MinGW-w64, in the variant with POSIX threads: std::thread needs it. The Qt for
# Windows is the folder MINGW_QT, an environment or a cache variable; build-qt beside this file makes one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_VERSION 10)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw}-windres)
# Windows 10: the headers offer less by default than Qt asks for.
foreach(language C CXX)
  set(CMAKE_${language}_FLAGS_INIT "-DWINVER=0x0A00 -D_WIN32_WINNT=0x0A00")
endforeach()

# Programs are run here; libraries, headers and packages are those of the target.
set(CMAKE_FIND_ROOT_PATH /usr/${mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()

# Without a Qt plain C++ still builds, and so does a Qt.
set(MINGW_QT "$ENV{MINGW_QT}" CACHE PATH "Qt built for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MINGW_QT)
if(MINGW_QT)
  if(NOT EXISTS "${MINGW_QT}/lib/cmake/Qt6/Qt6Config.cmake")
    message(FATAL_ERROR "There is no Qt for Windows in MINGW_QT, ${MINGW_QT}")
  endif()
  list(PREPEND CMAKE_FIND_ROOT_PATH "${MINGW_QT}")
  list(PREPEND CMAKE_PREFIX_PATH "${MINGW_QT}")
endif()
# Its moc and rcc are those of this machine's Qt, which would pack resources as the other can't unpack them.
set(QT_HOST_PATH /usr CACHE PATH "Qt of this machine")
file(GLOB host_packages LIST_DIRECTORIES true /usr/lib/*/cmake/Qt6HostInfo)
list(TRANSFORM host_packages REPLACE "/Qt6HostInfo$" "")
set(QT_HOST_PATH_CMAKE_DIR "${host_packages}" CACHE PATH "Its CMake packages")
set(CMAKE_AUTORCC_OPTIONS --no-zstd)

# Boost is headers alone, those of this machine, through a folder that holds nothing else: /usr/include has the C
# library of this machine beside them.
set(boost_link ${CMAKE_BINARY_DIR}/boost-headers/boost)
if(NOT EXISTS ${boost_link} AND EXISTS /usr/include/boost/version.hpp)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/boost-headers)
  file(CREATE_LINK /usr/include/boost ${boost_link} SYMBOLIC)
endif()
set(Boost_INCLUDE_DIR ${CMAKE_BINARY_DIR}/boost-headers CACHE PATH "Holds boost/")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/under-wine)
