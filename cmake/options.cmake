# Warnings, sanitizers and coverage, for everything that is built here.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion)
if(TINTORA_STRICT)
  add_compile_options(-Werror)
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
