# The packages of the modules that were built here, into out/packages. The script needs Debian's tools: on Windows, bash
# is that of the Linux subsystem, which knows files by their places from here.
file(RELATIVE_PATH modules_folder ${PROJECT_SOURCE_DIR} ${CMAKE_BINARY_DIR})
add_custom_target(packages
  COMMAND bash scripts/package --modules ${modules_folder}
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  USES_TERMINAL VERBATIM
)
add_dependencies(packages Tintora TintoraLibraryBuilder)
