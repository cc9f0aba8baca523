# What every target of this project is compiled with: all warnings, and the sanitizers where asked for.
add_library(varlo_options INTERFACE)
target_compile_options(varlo_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# GCC 12 takes every sum of a literal and a temporary string for an overlapping copy (its bug 105329).
target_compile_options(varlo_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(varlo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(VARLO_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(varlo_options INTERFACE ${sanitizers})
    target_link_options(varlo_options INTERFACE ${sanitizers})
endif()
if(VARLO_FUZZ)
    # Every target's code reports what it covers; the fuzzer itself is linked to its targets alone.
    target_compile_options(varlo_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(varlo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
