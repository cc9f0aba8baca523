# The target wx::core: wxWidgets core and base, from the system's packages; for Windows the static build that
# build-windows makes.
if(WIN32)
    include(wxWindows)
else()
    find_package(wxWidgets 3.2 REQUIRED COMPONENTS core base)
    add_library(wx_native INTERFACE)
    add_library(wx::core ALIAS wx_native)
    # As system headers, so that the project's warnings do not apply to them.
    target_include_directories(wx_native SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
    target_compile_definitions(wx_native INTERFACE ${wxWidgets_DEFINITIONS})
    target_compile_options(wx_native INTERFACE ${wxWidgets_CXX_FLAGS})
    target_link_libraries(wx_native INTERFACE ${wxWidgets_LIBRARIES})
endif()
