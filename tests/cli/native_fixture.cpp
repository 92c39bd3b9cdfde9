#include "tests/cli/native_fixture.h"

namespace tests {

NativeCliTest::NativeCliTest() {
  keepNoJournal();
}

}  // namespace tests
