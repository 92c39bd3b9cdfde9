// A module out of whose entry points exceptions come.
#include <Core/CoreAll.h>

#include <stdexcept>

extern "C" XI_EXPORT bool run(const char*) {
  throw std::out_of_range("out of run");
}

extern "C" XI_EXPORT bool stop(const char*) {
  throw std::invalid_argument("out of stop");
}
