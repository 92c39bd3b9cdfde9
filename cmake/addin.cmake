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
if(TINTORA_SANITIZERS)
  # In one batch nothing could be used before another source has initialised it.
  set_target_properties(tintora_objects PROPERTIES UNITY_BUILD OFF)
endif()
# Beside the programs, which look for it there.
if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
  set(TINTORA_ADDIN_FOLDER ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/addin)
else()
  set(TINTORA_ADDIN_FOLDER ${CMAKE_BINARY_DIR}/addin)
endif()
add_host_module(Tintora tintora_objects ${TINTORA_ADDIN_FOLDER} "${PROJECT_DESCRIPTION}")
target_link_libraries(Tintora PRIVATE module_startup)
