// Every icon folder that the add-in names is among the pictures that are shipped beside it.
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tests/support/addin_fixture.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

/// The add-in in the folder that users get, pictures included, with the headless colour library in it. Pictures are
/// built where the add-in is packed, which is not on Windows.
class PosixIconFolders : public AddInTest {
 protected:
  void SetUp() override {
    const fs::path built = folder.path() / "built";
    const int status =
        std::system(("'" TINTORA_SOURCE_DIR "/scripts/make_resources' '" + built.string() + "' > /dev/null").c_str());
    constexpr int toolMissing = 77;
    if (WIFEXITED(status) && WEXITSTATUS(status) == toolMissing && std::getenv("CI") == nullptr) {
      GTEST_SKIP() << "rsvg-convert or Pillow is missing: install librsvg2-bin and python3-pil";
    }
    ASSERT_EQ(status, 0) << "scripts/make_resources failed";
    const auto replacing = fs::copy_options::recursive | fs::copy_options::overwrite_existing;
    fs::copy(built, folder.path() / "resources", replacing);
    fs::copy(TINTORA_SOURCE_DIR "/host/libraries/data", folder.path() / "resources" / "Libs", replacing);
    startDialog();
  }

  void expectIcons(const std::string& icons, const std::vector<std::string>& sizes) {
    for (const std::string& size : sizes) {
      EXPECT_TRUE(folder.has(fs::path(icons) / (size + ".png"))) << icons << " has no " << size;
    }
  }

  /// Those of the inputs, and of what is inside them.
  void expectIconsOf(const std::vector<headless::InputView>& inputs) {
    for (const headless::InputView& input : inputs) {
      if (!input.icon.empty()) {
        expectIcons(input.icon, {"16x16", "16x16-disabled", "16x16@2x"});
        ++iconsOfInputs;
      }
      for (const headless::ItemView& item : input.items) {
        if (!item.icon.empty()) {
          expectIcons(item.icon, {"16x16", "16x16@2x"});
          iconsOfItems.insert(item.icon);
        }
      }
      expectIconsOf(input.children);
    }
  }

  int iconsOfInputs = 0;
  std::set<std::string> iconsOfItems;
};

TEST_F(PosixIconFolders, OfTheWholeAddInAreShipped) {
  const std::vector<headless::ButtonView> buttons = session().toolbar();
  int ownButtons = 0;
  for (const headless::ButtonView& button : buttons) {
    if (!button.icon.empty()) {
      expectIcons(button.icon, {"16x16", "32x32", "64x64"});
      ++ownButtons;
    }
  }
  EXPECT_EQ(ownButtons, 4);

  expectIconsOf(session().dialog().inputs);
  EXPECT_EQ(iconsOfInputs, 2);
  constexpr std::size_t selectionFilters = 3;
  constexpr std::size_t colours = 216;
  EXPECT_EQ(iconsOfItems.size(), selectionFilters + colours);
}

TEST_F(PosixIconFolders, GiveEachColourItsOwnSwatch) {
  const std::vector<headless::ItemView> items = session().input("idAppearanceList").items;
  ASSERT_EQ(items.size(), 216u);
  for (const headless::ItemView& item : items) {
    EXPECT_EQ(fs::path(item.icon).filename(), "RAL" + item.name.substr(4, 4)) << item.name;
  }
}

}  // namespace
}  // namespace tests
