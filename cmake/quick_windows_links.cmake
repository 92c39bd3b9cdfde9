# Links the host and the programs for Windows with LLVM's linker: that of the binutils takes time by the square of the
# number of sections, most of a minute for them together. Modules are linked as users get them.
find_program(lld ld.lld-14 REQUIRED)
find_program(clang clang++-14 REQUIRED)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=. OUTPUT_VARIABLE compiler_libraries
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(quick_link "${clang} --target=x86_64-w64-windows-gnu --ld-path=${lld} -L${compiler_libraries}")
set(CMAKE_CXX_LINK_EXECUTABLE
  "${quick_link} <FLAGS> <CMAKE_CXX_LINK_FLAGS> <LINK_FLAGS> <OBJECTS> -o <TARGET> <LINK_LIBRARIES> -lpthread")
# Everything is exported but what the compiler's run-time library brings for exceptions, which each module has of its own.
set(exports "<TARGET>.def")
set(CMAKE_CXX_CREATE_SHARED_LIBRARY
  "${quick_link} -shared <LINK_FLAGS> <OBJECTS> -o <TARGET> -Wl,--output-def,${exports}.all <LINK_LIBRARIES> -lpthread"
  "sed -e /_Unwind_/d -e /_GCC_/d ${exports}.all > ${exports}"
  "${quick_link} -shared <LINK_FLAGS> <OBJECTS> ${exports} -o <TARGET> -Wl,--out-implib,<TARGET_IMPLIB> <LINK_LIBRARIES> -lpthread")
