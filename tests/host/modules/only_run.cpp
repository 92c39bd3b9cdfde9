// A module that needs no stop, as scripts do not; it succeeds when the host told it how it was started.
#include <Core/CoreAll.h>

#include <string>

extern "C" XI_EXPORT bool run(const char* context) {
  return std::string(context).find("\"IsApplicationStartup\": false") != std::string::npos;
}
