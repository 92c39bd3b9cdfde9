// Lets GoogleTest print API handles. Without this it takes each for a container, as every handle has begin() and end().
#pragma once

#include <Core/CoreAll.h>

#include <ostream>

namespace adsk {
namespace core {

template <class T>
void PrintTo(const Ptr<T>& handle, std::ostream* stream) {
  if (handle) {
    *stream << handle->objectType() << " at " << static_cast<const void*>(handle.get());
  } else {
    *stream << "no object";
  }
}

}  // namespace core
}  // namespace adsk
