// What the properties of the module's file show.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/addin_folder.h"
#include "tests/support/windows_calls.h"

namespace tests {
namespace {

class WindowsVersionResource : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::wstring file = folder.module().wstring();
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(file.c_str(), &ignored);
    ASSERT_GT(size, 0U);
    resource.resize(size);
    ASSERT_TRUE(GetFileVersionInfoW(file.c_str(), 0, size, resource.data()));
  }

  std::string text(const std::string& name) {
    void* value = nullptr;
    UINT length = 0;
    const std::string path = "\\StringFileInfo\\040904B0\\" + name;
    return VerQueryValueA(resource.data(), path.c_str(), &value, &length) ? static_cast<const char*>(value) : "missing";
  }

  AddInFolder folder;
  std::vector<char> resource;
};

TEST_F(WindowsVersionResource, NamesProductVersionAndFile) {
  EXPECT_EQ(text("ProductName"), "Tintora");
  EXPECT_EQ(text("FileDescription"), TINTORA_DESCRIPTION);
  EXPECT_EQ(text("OriginalFilename"), "Tintora.dll");
  EXPECT_EQ(text("FileVersion"), TINTORA_VERSION);
  EXPECT_EQ(text("ProductVersion"), TINTORA_VERSION);
}

TEST_F(WindowsVersionResource, HasTheVersionInNumbers) {
  void* value = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueW(resource.data(), L"\\", &value, &length));
  const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(value);
  const DWORD numbers[] = {TINTORA_VERSION_NUMBERS};
  EXPECT_EQ(fixed.dwFileVersionMS, (numbers[0] << 16U) | numbers[1]);
  EXPECT_EQ(fixed.dwFileVersionLS, numbers[2] << 16U);
}

}  // namespace
}  // namespace tests
