# Warnings, sanitizers and coverage, for everything that is built here.
if(MSVC)
  add_compile_options(/W4 /permissive- /utf-8 /EHsc /Brepro $<$<BOOL:${TINTORA_STRICT}>:/WX>)
  add_link_options(/Brepro)
else()
  add_compile_options(-Wall -Wextra -Wpedantic -Wconversion $<$<BOOL:${TINTORA_STRICT}>:-Werror>)
endif()

if(WIN32)
  # The system's header would define them as macros, wherever the host's headers include it.
  add_compile_definitions(NOMINMAX)
endif()

if(MINGW)
  # The same sources give the same bytes, whenever and wherever they are built.
  add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)
  add_link_options(-Wl,--no-insert-timestamp)
endif()

# The exception of an empty handle is only raised where its assertion is switched off, as in what users install.
add_compile_definitions(NDEBUG)

if(TINTORA_SANITIZERS)
  add_compile_options(-fsanitize=${TINTORA_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TINTORA_SANITIZERS})
  # Casts between handles go by class text, which this check does not see through module borders.
  add_compile_options(-fno-sanitize=vptr)
endif()

if(TINTORA_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
