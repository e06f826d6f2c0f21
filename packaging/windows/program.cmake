# What the program is besides its code on Windows.

# Icon, version and what the system is to know of the program stand in the file itself.
set(loftwing_icon ${LOFTWING_NATIVE}/packaging/made/loftwing.ico)
if(NOT EXISTS ${loftwing_icon})
  message(FATAL_ERROR "There is no ${loftwing_icon}: build loftwing_install_files for this machine "
    "and name its build folder by LOFTWING_NATIVE")
endif()
string(REPLACE "." "," LOFTWING_VERSION_NUMBERS "${PROJECT_VERSION}")
configure_file(packaging/windows/loftwing.rc.in ${CMAKE_BINARY_DIR}/generated/loftwing.rc @ONLY)
set_property(SOURCE ${CMAKE_BINARY_DIR}/generated/loftwing.rc PROPERTY OBJECT_DEPENDS
  "${loftwing_icon};${CMAKE_SOURCE_DIR}/packaging/windows/loftwing.manifest")
enable_language(RC)
target_sources(loftwing PRIVATE ${CMAKE_BINARY_DIR}/generated/loftwing.rc)

# A program with windows gets no console from the system, and a shell doesn't wait for it. The same
# program once more is one for the console: "loftwing" typed there finds .com before .exe.
add_executable(loftwing_console src/app/main.cpp ${CMAKE_BINARY_DIR}/generated/loftwing.rc)
target_link_libraries(loftwing_console PRIVATE loftwing_app)
set_target_properties(loftwing_console PROPERTIES
  OUTPUT_NAME loftwing SUFFIX .com RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
