#include "tests/cli/native_fixture.h"

namespace tests {

NativeCliTest::NativeCliTest() : CliTest(Program::Usual) {
  keepNoJournal();
}

}  // namespace tests
