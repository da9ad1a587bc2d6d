# Builds for 64-bit Windows with Debian's mingw-w64. The libraries lie in ZEUGNIS_CROSS_PREFIX.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(ZEUGNIS_CROSS_HOST x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZEUGNIS_CROSS_HOST}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZEUGNIS_CROSS_HOST}-g++-posix)
set(CMAKE_RC_COMPILER ${ZEUGNIS_CROSS_HOST}-windres)

set(ZEUGNIS_CROSS_PREFIX $ENV{ZEUGNIS_CROSS_PREFIX})
set(CMAKE_FIND_ROOT_PATH /usr/${ZEUGNIS_CROSS_HOST} ${ZEUGNIS_CROSS_PREFIX})
set(CMAKE_PREFIX_PATH ${ZEUGNIS_CROSS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's own programs (moc, rcc) are those of this machine.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

# The linker writes no time of day into a program.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
