# Builds for 64-bit Windows on Linux: MinGW-w64 with posix threads compiles, Wine runs what was built.
#
# VARLO_WINDOWS_TOOLKIT is the folder with the Windows builds of wxWidgets and GoogleTest; its path is the
# last line that tools/windows-toolkit prints.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)

# One file to run: the compiler's own libraries go into the program as well. Functions that nothing calls
# are left out, for which each needs a section of its own. A function notices when its stack is overrun.
foreach(language C CXX)
    set(CMAKE_${language}_FLAGS_INIT "-ffunction-sections -fdata-sections -fstack-protector-strong")
endforeach()
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections")

# Programs come from this system, everything that is linked or included from the Windows one.
set(CMAKE_FIND_ROOT_PATH /usr/${triplet} ${VARLO_WINDOWS_TOOLKIT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
