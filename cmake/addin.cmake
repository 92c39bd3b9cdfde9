# The add-in: a module named Tintora.dll on every system, in a folder that can be loaded as it stands.
add_library(tintora_objects OBJECT
  dialog/command_dialog.cpp
  dialog/item_lists.cpp
  dialog/libraries.cpp
  dialog/selection_filter.cpp
  dialog/wait_cursor.cpp
  inspection/appearance_source.cpp
  inspection/applied_appearances.cpp
  inspection/physical_material.cpp
  inspection/selection_info.cpp
  interaction/apply_state.cpp
  interaction/assignment.cpp
  interaction/input_changed.cpp
  interaction/removal.cpp
  shell/addin.cpp
  shell/command_settings.cpp
  shell/echo_guard.cpp
  shell/event_handlers.cpp
  shell/globals.cpp
  shell/host_objects.cpp
  shell/module_path.cpp
  shell/text.cpp
  shell/toolbar.cpp
  shell/users_guide.cpp
)
target_include_directories(tintora_objects PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(tintora_objects PUBLIC host_api)
set_target_properties(tintora_objects PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Unique symbols would keep the module in memory after it was unloaded.
  target_compile_options(tintora_objects PRIVATE -fno-gnu-unique)
endif()

add_library(Tintora MODULE $<TARGET_OBJECTS:tintora_objects>)
target_link_libraries(Tintora PRIVATE host_libraries module_startup)
if(WIN32)
  configure_file(cmake/version.rc.in ${CMAKE_BINARY_DIR}/version.rc @ONLY)
  target_sources(Tintora PRIVATE ${CMAKE_BINARY_DIR}/version.rc)
  if(MINGW)
    # What the system's loader needs to place the module anywhere and to keep its data from being run.
    target_link_options(Tintora PRIVATE -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
  endif()
else()
  # Exactly the entry points leave the module, not the templates of the standard library that it uses.
  target_link_options(Tintora PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
  set_target_properties(Tintora PROPERTIES LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
endif()
# Beside the programs, which look for it there.
if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
  set(TINTORA_ADDIN_FOLDER ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/addin)
else()
  set(TINTORA_ADDIN_FOLDER ${CMAKE_BINARY_DIR}/addin)
endif()
set_target_properties(Tintora PROPERTIES
  PREFIX ""
  SUFFIX ".dll"
  LIBRARY_OUTPUT_DIRECTORY ${TINTORA_ADDIN_FOLDER}
)
