# The module alone against the vendor's SDK, in place of the headless host. The folder is the SDK's API/CPP, which holds
# include/ and, in one place or another below it, the import libraries.
if(NOT EXISTS "${TINTORA_VENDOR_SDK}/include/Core/CoreAll.h")
  message(FATAL_ERROR "TINTORA_VENDOR_SDK is \"${TINTORA_VENDOR_SDK}\", where include/Core/CoreAll.h does not exist. "
    "Give the folder API/CPP of the CAD program's installation.")
endif()

add_library(host_api INTERFACE)
target_include_directories(host_api SYSTEM INTERFACE ${TINTORA_VENDOR_SDK}/include)

# Windows modules have it from their own start-up code.
add_library(module_startup INTERFACE)
add_library(host_libraries INTERFACE)
foreach(name core fusion)
  # Looked for each time, as the SDK's folder changes with every update; one that is given by hand is taken as it is.
  find_library(TINTORA_VENDOR_${name} NAMES ${name} ${name}.lib NO_CACHE
    PATHS ${TINTORA_VENDOR_SDK} PATH_SUFFIXES lib lib/x64 lib/win64 NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  target_link_libraries(host_libraries INTERFACE ${TINTORA_VENDOR_${name}})
endforeach()
