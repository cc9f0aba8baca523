# The options of every target: all warnings, and the sanitizers if asked for.
add_library(varlo_options INTERFACE)
target_compile_options(varlo_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# GCC 12 wrongly reports the sum of a literal and a temporary string as an overlapping copy (its bug 105329).
target_compile_options(varlo_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(varlo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# Keep this machine's folders out of the program, so that it is the same on every machine.
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
    # For the program: its address differs at each start, and data cannot be executed. The toolchain file adds the
    # stack protector. Without a time stamp the linker writes the same file each time.
    set(hardening_link -Wl,--dynamicbase,--high-entropy-va,--nxcompat,--no-insert-timestamp)
else()
    # For the program: the options of Debian's own packages. (Its compiler already makes position-independent
    # programs.)
    set(hardening -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    set(hardening_link -Wl,-z,relro,-z,now)
endif()
if(VARLO_FUZZ)
    # Every target's code reports its coverage; only the fuzz targets link the fuzzer.
    target_compile_options(varlo_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(varlo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
