// A folder of a test's own, so that tests may run side by side. It is gone with the test.
#pragma once

#include <filesystem>
#include <random>
#include <sstream>
#include <stdexcept>

namespace tests {

class TemporaryFolder {
 public:
  TemporaryFolder() : folder(makeUnique()) {}
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  const std::filesystem::path& path() const { return folder; }

 private:
  static std::filesystem::path makeUnique() {
    const std::filesystem::path parent = std::filesystem::temp_directory_path();
    std::random_device seed;
    for (int attempt = 0; attempt < 100; ++attempt) {
      std::ostringstream name;
      name << "tintora-test-" << std::hex << seed();
      if (std::filesystem::create_directory(parent / name.str())) {
        return parent / name.str();
      }
    }
    throw std::runtime_error("no folder can be made in " + parent.u8string());
  }

  std::filesystem::path folder;
};

}  // namespace tests
