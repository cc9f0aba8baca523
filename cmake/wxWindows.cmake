# The target wx::core for Windows: wxWidgets core and base as static libraries, from the folder that
# tools/windows-toolkit makes. On other systems the target is the system's wxWidgets.
set(VARLO_WINDOWS_TOOLKIT "" CACHE PATH "Windows builds of wxWidgets and GoogleTest")
if(NOT EXISTS "${VARLO_WINDOWS_TOOLKIT}/complete")
    message(FATAL_ERROR "VARLO_WINDOWS_TOOLKIT is \"${VARLO_WINDOWS_TOOLKIT}\", which is not a folder made by "
        "tools/windows-toolkit. Run ./build-windows, or set it to the path which that script prints.")
endif()

set(libraries ${VARLO_WINDOWS_TOOLKIT}/lib/gcc_x64_lib)
add_library(wx_windows INTERFACE)
add_library(wx::core ALIAS wx_windows)
target_include_directories(wx_windows SYSTEM INTERFACE
    ${libraries}/mswu # wx/setup.h: what was configured
    ${VARLO_WINDOWS_TOOLKIT}/include)
target_compile_definitions(wx_windows INTERFACE __WXMSW__ UNICODE _UNICODE wxUSE_GUI=1)
target_link_libraries(wx_windows INTERFACE
    ${libraries}/libwxmsw32u_core.a ${libraries}/libwxbase32u.a
    # Windows' own libraries that they call.
    comctl32 comdlg32 gdi32 gdiplus msimg32 ole32 oleaut32 rpcrt4 shell32 shlwapi uuid winmm winspool)

# Windows would look for these libraries beside the program first. They are loaded at their first call; by then the
# program allows only the system's folder (src/main_msw.cpp). The lists hold the functions that wxWidgets and the tests
# call; linking fails if one is missing.
foreach(library oleacc uxtheme version)
    set(list ${CMAKE_SOURCE_DIR}/packaging/windows/delayed/${library}.def)
    set(delayed ${CMAKE_BINARY_DIR}/lib${library}_delayed.a)
    add_custom_command(OUTPUT ${delayed}
        COMMAND ${CMAKE_DLLTOOL} --input-def ${list} --output-delaylib ${delayed}
        DEPENDS ${list})
    add_custom_target(delayed_${library} DEPENDS ${delayed})
    add_dependencies(wx_windows delayed_${library})
    target_link_libraries(wx_windows INTERFACE ${delayed})
endforeach()

# Values for the resources. A part of the numeric version has only 16 bits, too few for the date, so the year and the
# day are two parts.
math(EXPR year "${PROJECT_VERSION_PATCH} / 10000")
math(EXPR day "${PROJECT_VERSION_PATCH} % 10000")
set(file_version ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${year}.${day})
string(REPLACE "." ", " file_version_numbers ${file_version})
foreach(resource varlostudiji.rc varlostudiji.manifest)
    configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/${resource}.in ${CMAKE_BINARY_DIR}/${resource} @ONLY)
endforeach()

# Gives a program the icon, the version information and the manifest. Programs with windows, also tests, need the
# manifest to get modern controls.
function(add_windows_resources target)
    set(resources ${CMAKE_BINARY_DIR}/varlostudiji.rc)
    set(icons ${CMAKE_SOURCE_DIR}/packaging/windows)
    target_sources(${target} PRIVATE ${resources})
    set_source_files_properties(${resources} TARGET_DIRECTORY ${target} PROPERTIES
        INCLUDE_DIRECTORIES ${icons}
        OBJECT_DEPENDS "${icons}/varlostudiji.ico;${CMAKE_BINARY_DIR}/varlostudiji.manifest")
endfunction()
