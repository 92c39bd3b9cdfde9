# The library builder: a script module of its own, in a folder that the CAD program can link as it stands. Like the
# add-in it is a .dll by name on every system.

# The colours are compiled in from the one table of them.
set(ral_csv ${PROJECT_SOURCE_DIR}/host/libraries/tables/ral-classic.csv)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ral_csv})
file(STRINGS ${ral_csv} ral_lines)
list(POP_FRONT ral_lines ral_head)
if(NOT ral_head STREQUAL "code,name,srgb")
  message(FATAL_ERROR "${ral_csv} does not begin with \"code,name,srgb\"")
endif()
set(RAL_ROWS "")
foreach(line IN LISTS ral_lines)
  if(NOT line MATCHES "^([0-9][0-9][0-9][0-9]),([A-Za-z0-9 ]+),#([0-9A-F][0-9A-F])([0-9A-F][0-9A-F])([0-9A-F][0-9A-F])$")
    message(FATAL_ERROR "${ral_csv}: \"${line}\" is not \"code,name,#RRGGBB\"")
  endif()
  string(APPEND RAL_ROWS
    "      {\"RAL ${CMAKE_MATCH_1} ${CMAKE_MATCH_2}\", 0x${CMAKE_MATCH_3}, 0x${CMAKE_MATCH_4}, 0x${CMAKE_MATCH_5}},\n")
endforeach()
configure_file(library_builder/ral_table.cpp.in ${CMAKE_BINARY_DIR}/generated/ral_table.cpp @ONLY)

add_library(library_builder_objects OBJECT
  library_builder/appearance_maker.cpp
  library_builder/library_builder.cpp
  library_builder/messages.cpp
  library_builder/progress.cpp
  library_builder/source_appearance.cpp
  library_builder/target_design.cpp
  ${CMAKE_BINARY_DIR}/generated/ral_table.cpp
)
set(TINTORA_LIBRARY_BUILDER_FOLDER ${CMAKE_BINARY_DIR}/scripts/TintoraLibraryBuilder)
add_host_module(TintoraLibraryBuilder library_builder_objects ${TINTORA_LIBRARY_BUILDER_FOLDER}
  "${LIBRARY_BUILDER_DESCRIPTION}")
configure_file(library_builder/library_builder.manifest.in
  ${TINTORA_LIBRARY_BUILDER_FOLDER}/TintoraLibraryBuilder.manifest @ONLY)
