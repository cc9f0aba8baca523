# What every target of this project is compiled with: all warnings, and the sanitizers where asked for.
add_library(varlo_options INTERFACE)
target_compile_options(varlo_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
target_include_directories(varlo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(VARLO_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(varlo_options INTERFACE ${sanitizers})
    target_link_options(varlo_options INTERFACE ${sanitizers})
endif()
