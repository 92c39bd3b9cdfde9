#include "tests/cli/program_fixture.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace tests {

std::string ProgramTest::content(const std::string& name) const {
  std::ostringstream text;
  text << std::ifstream(pathOf(name), std::ios::binary).rdbuf();
  return text.str();
}

void ProgramTest::fill(const std::string& name, const std::string& text) const {
  std::ofstream(pathOf(name), std::ios::binary) << text;
}

std::string ProgramTest::copyAddIn() const {
  const std::filesystem::path copy = pathOf("addin");
  std::filesystem::copy(TINTORA_ADDIN_FOLDER, copy, std::filesystem::copy_options::recursive);
  std::filesystem::remove(copy / "Tintora_UsersGuide.pdf");
  std::filesystem::remove(copy / "Tintora_USER_CmdSet.txt");
  return copy.u8string();
}

std::vector<std::string> ProgramTest::filesInFolder() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    names.push_back(entry.path().filename().u8string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string ProgramTest::succeed(const std::vector<std::string>& arguments) const {
  const Outcome outcome = runProgram(arguments, program);
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  return outcome.out;
}

std::string ProgramTest::fail(int exitCode, const std::vector<std::string>& arguments) const {
  const Outcome outcome = runProgram(arguments, program);
  EXPECT_EQ(outcome.exitCode, exitCode) << outcome.out << outcome.err;
  EXPECT_EQ(outcome.out, "");
  return outcome.err;
}

}  // namespace tests
