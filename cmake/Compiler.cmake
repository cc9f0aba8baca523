# What every target of this project is compiled with: all warnings, and the sanitizers where asked for.
add_library(varlo_options INTERFACE)
target_compile_options(varlo_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# GCC 12 takes every sum of a literal and a temporary string for an overlapping copy (its bug 105329).
target_compile_options(varlo_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(varlo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# The folders of this machine stay out of a program, so that it comes out the same on every other.
set(path_maps -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
if(WIN32)
    list(APPEND path_maps -ffile-prefix-map=${VARLO_WINDOWS_TOOLKIT}=toolkit)
endif()
target_compile_options(varlo_options INTERFACE "$<$<CONFIG:Release,MinSizeRel>:${path_maps}>")

if(VARLO_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(varlo_options INTERFACE ${sanitizers})
    target_link_options(varlo_options INTERFACE ${sanitizers})
elseif(WIN32)
    # For the program: it lies at another address each time, and data are not run. The toolchain file adds the stack
    # protector. Without a time stamp the linker writes the same file each time.
    set(hardening_link -Wl,--dynamicbase,--high-entropy-va,--nxcompat,--no-insert-timestamp)
else()
    # For the program: what Debian builds its own packages with. (Its compiler makes position-independent programs
    # without being asked.)
    set(hardening -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    set(hardening_link -Wl,-z,relro,-z,now)
endif()
if(VARLO_FUZZ)
    # Every target's code reports what it covers; the fuzzer itself is linked to its targets alone.
    target_compile_options(varlo_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(varlo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
