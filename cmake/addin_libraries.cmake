# The headless host's own libraries stand in for those that only the CAD program can make.
add_custom_target(addin_libraries ALL
  COMMAND ${CMAKE_COMMAND} -E copy_directory
    ${PROJECT_SOURCE_DIR}/host/libraries/data ${TINTORA_ADDIN_FOLDER}/resources/Libs
  COMMENT "Putting the headless libraries beside the module"
)
add_dependencies(addin_libraries Tintora)
