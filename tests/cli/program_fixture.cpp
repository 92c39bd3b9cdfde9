#include "tests/cli/program_fixture.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "tests/support/usual_profile.h"

namespace tests {

namespace {

bool runsTheAddIn(const std::vector<std::string>& arguments) {
  static const std::vector<std::string> commands = {"dialog", "apply", "clear", "demo"};
  return !arguments.empty() && std::find(commands.begin(), commands.end(), arguments.front()) != commands.end();
}

bool isIn(const std::vector<std::string>& arguments, const std::string& option) {
  return std::find(arguments.begin(), arguments.end(), option) != arguments.end();
}

/// Adds an option right after the command.
void add(std::vector<std::string>& arguments, const std::string& option, const std::string& value) {
  arguments.insert(arguments.begin() + 1, {option, value});
}

std::string contentOf(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

}  // namespace

std::filesystem::path addInFolderIn(const std::string& calls) {
  const std::string name = "Tintora";
  const std::size_t copy = calls.find("tintora-host-");
  const std::size_t end = calls.find(name, copy);
  if (end == std::string::npos) {
    return {};
  }
  const std::size_t begin = calls.rfind('"', copy) + 1;
  return std::filesystem::u8path(calls.substr(begin, end + name.size() - begin));
}

std::string ProgramTest::content(const std::string& name) const {
  return contentOf(pathOf(name));
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

Outcome ProgramTest::run(std::vector<std::string> arguments) const {
  if (!runsTheAddIn(arguments)) {
    return runProgram(arguments, program);
  }
  const std::string profile = usualProfile().name;
  if (profile != headless::documentedProfile().name && !isIn(arguments, "--profile")) {
    add(arguments, "--profile", profile);
  }
  return isJournalKept ? runForJournal(std::move(arguments)) : runProgram(arguments, program);
}

// Tests list what is in their folder, so the trace of one that asks for none goes elsewhere.
Outcome ProgramTest::runForJournal(std::vector<std::string> arguments) const {
  const TemporaryFolder aside;
  if (!isIn(arguments, "--trace")) {
    add(arguments, "--trace", (aside.path() / "calls.txt").u8string());
  }
  const auto option = std::find(arguments.begin(), arguments.end(), "--trace");
  const std::filesystem::path trace = std::filesystem::u8path(*std::next(option));
  const bool isNew = !std::filesystem::exists(trace);
  const Outcome outcome = runProgram(arguments, program);
  if (isNew && std::filesystem::exists(trace)) {
    const std::string calls = contentOf(trace);
    keepJournal(calls, isIn(arguments, "--keep-settings") ? pathOf("addin") : addInFolderIn(calls), arguments.front());
  }
  return outcome;
}

std::string ProgramTest::succeed(const std::vector<std::string>& arguments) const {
  const Outcome outcome = run(arguments);
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  return outcome.out;
}

std::string ProgramTest::fail(int exitCode, const std::vector<std::string>& arguments) const {
  const Outcome outcome = run(arguments);
  EXPECT_EQ(outcome.exitCode, exitCode) << outcome.out << outcome.err;
  EXPECT_EQ(outcome.out, "");
  return outcome.err;
}

}  // namespace tests
