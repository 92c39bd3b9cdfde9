// The fixture of tests that are not there on Windows, as they take the geometry kernel or what only POSIX systems have.
// They run the program as it is built there, on STEP files.
#pragma once

#include "tests/cli/cli_fixture.h"

namespace tests {

class NativeCliTest : public CliTest {
 protected:
  NativeCliTest();
};

}  // namespace tests
