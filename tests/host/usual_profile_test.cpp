// The host of a test that names no profile has the one that the environment names.
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "tests/library_builder/builder_fixture.h"
#include "tests/support/addin_fixture.h"

namespace tests {
namespace {

/// Names another usual profile as long as it is there.
class OtherProfile {
 public:
  explicit OtherProfile(const std::string& name) { set(name); }
  OtherProfile(const OtherProfile&) = delete;
  OtherProfile& operator=(const OtherProfile&) = delete;
  ~OtherProfile() { set(before); }

 private:
  static std::string current() {
    const char* const name = std::getenv("TINTORA_PROFILE");
    return name == nullptr ? "" : name;
  }
  static void set(const std::string& name) {
#ifdef _WIN32
    _putenv_s("TINTORA_PROFILE", name.c_str());
#else
    name.empty() ? unsetenv("TINTORA_PROFILE") : setenv("TINTORA_PROFILE", name.c_str(), 1);
#endif
  }

  std::string before = current();
};

TEST(UsualProfile, IsTheDocumentedOneUnlessAnotherIsNamed) {
  const OtherProfile none("");
  EXPECT_EQ(usualProfile().name, "documented");
  const OtherProfile lenient("lenient");
  EXPECT_EQ(usualProfile().name, "lenient");
}

TEST(UsualProfile, OfAnUnknownNameIsRefused) {
  const OtherProfile unknown("rude");
  EXPECT_THROW(usualProfile(), std::invalid_argument);
}

using UsualHost = AddInTest;

TEST_F(UsualHost, OfTheAddInHasTheUsualProfile) {
  const OtherProfile hostile("hostile");
  startDialog();
  EXPECT_EQ(host().profile().name, "hostile");
}

using UsualHostOfTheScript = LibraryBuilderTest;

TEST_F(UsualHostOfTheScript, HasTheUsualProfile) {
  const OtherProfile hostile("hostile");
  start();
  EXPECT_EQ(host().profile().name, "hostile");
}

}  // namespace
}  // namespace tests
