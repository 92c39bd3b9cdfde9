# Links programs for Windows with LLVM's linker: that of the binutils takes time by the square of the number of
# sections, most of a minute for the tests. Modules and the host's library are linked as users get them.
find_program(lld ld.lld-14 REQUIRED)
find_program(clang clang++-14 REQUIRED)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=. OUTPUT_VARIABLE compiler_libraries
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(JOIN " " CMAKE_CXX_LINK_EXECUTABLE
  ${clang} --target=x86_64-w64-windows-gnu --ld-path=${lld} -L${compiler_libraries}
  "<FLAGS> <CMAKE_CXX_LINK_FLAGS> <LINK_FLAGS> <OBJECTS> -o <TARGET> <LINK_LIBRARIES> -lpthread")
