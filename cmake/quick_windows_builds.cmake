# For Windows, has LLVM link the host and the programs, and compile the tests and their framework: linking with the
# binutils takes time by the square of the number of sections, and mingw-w64 three times as long for the tests. The modules
# of the add-in and of the library builder are built as users get them, and mingw-w64 compiles the host.
find_program(lld ld.lld-14 REQUIRED)
find_program(clang clang++-14 REQUIRED)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=. OUTPUT_VARIABLE compiler_libraries
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(quick_compiler "${clang} --target=x86_64-w64-windows-gnu")
set(quick_library ${compiler_libraries}/include/c++)

set(quick_link "${quick_compiler} --ld-path=${lld} -L${compiler_libraries}")
set(CMAKE_CXX_LINK_EXECUTABLE
  "${quick_link} <FLAGS> <CMAKE_CXX_LINK_FLAGS> <LINK_FLAGS> <OBJECTS> -o <TARGET> <LINK_LIBRARIES> -lpthread")
# Everything is exported but what the compiler's run-time library brings for exceptions: each module has its own.
set(exports "<TARGET>.def")
string(CONCAT link_listing_exports "${quick_link} -shared <LINK_FLAGS> <OBJECTS> -o <TARGET> "
  "-Wl,--output-def,${exports}.all <LINK_LIBRARIES> -lpthread")
string(CONCAT link_with_exports "${quick_link} -shared <LINK_FLAGS> <OBJECTS> ${exports} -o <TARGET> "
  "-Wl,--out-implib,<TARGET_IMPLIB> <LINK_LIBRARIES> -lpthread")
set(CMAKE_CXX_CREATE_SHARED_LIBRARY
  "${link_listing_exports}" "sed -e /_Unwind_/d -e /_GCC_/d ${exports}.all > ${exports}" "${link_with_exports}")

# compile_quickly(): has LLVM compile the calling folder's sources, with the library of mingw-w64. Variables of a thread
# and the comparison of types are made as that compiler makes them; options that only that one knows are passed over.
macro(compile_quickly)
  string(CONCAT CMAKE_CXX_COMPILE_OBJECT "${quick_compiler} -femulated-tls -D__GXX_TYPEINFO_EQUALITY_INLINE=0 "
    "-Wno-unused-command-line-argument -nostdinc++ "
    "-isystem ${quick_library} -isystem ${quick_library}/x86_64-w64-mingw32 -isystem ${quick_library}/backward "
    "<DEFINES> <INCLUDES> <FLAGS> -o <OBJECT> -c <SOURCE>")
endmacro()
