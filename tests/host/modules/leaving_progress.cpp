// A script that shows a progress dialog and forgets to hide it.
#include <Core/CoreAll.h>

extern "C" XI_EXPORT bool run(const char*) {
  return adsk::core::Application::get()->userInterface()->createProgressDialog()->show("Forgotten", "", 0, 10);
}
