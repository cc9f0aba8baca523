# GoogleTest: the system's package, or for Windows the copy that build-windows made.
include(GoogleTest)
find_package(GTest REQUIRED)
