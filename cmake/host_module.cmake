# add_host_module(TARGET OBJECTS FOLDER DESCRIPTION): a module that the CAD program loads, of an object library, in a
# folder that can be loaded as it stands. Modules are .dll files by name on every system.
function(add_host_module target objects folder description)
  target_include_directories(${objects} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${objects} PUBLIC host_api)
  set_target_properties(${objects} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
    # Unique symbols would keep the module in memory after it was unloaded.
    target_compile_options(${objects} PRIVATE -fno-gnu-unique)
  endif()

  add_library(${target} MODULE $<TARGET_OBJECTS:${objects}>)
  target_link_libraries(${target} PRIVATE host_libraries)
  set_target_properties(${target} PROPERTIES
    PREFIX ""
    SUFFIX ".dll"
    # The same place whatever the configuration.
    LIBRARY_OUTPUT_DIRECTORY $<1:${folder}>
  )
  if(WIN32)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${CMAKE_BINARY_DIR}/generated/${target}.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_BINARY_DIR}/generated/${target}.rc)
    if(MINGW)
      # What the system's loader needs to place the module anywhere and to keep its data from being run.
      target_link_options(${target} PRIVATE -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
    endif()
  else()
    # Exactly the entry points leave the module, not the templates of the standard library that it uses.
    target_link_options(${target} PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
  endif()
endfunction()
