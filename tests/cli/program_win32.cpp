#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "tests/cli/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {

namespace fs = std::filesystem;

namespace {

/// An argument as the program's own taking apart of its command line gives it back: quotation marks and the backslashes
/// right before them need a backslash each.
std::wstring quoted(const std::wstring& argument) {
  std::wstring text = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t character : argument) {
    if (character == L'"') {
      text.append(backslashes + 1, L'\\');
    }
    backslashes = character == L'\\' ? backslashes + 1 : 0;
    text += character;
  }
  return text.append(backslashes, L'\\').append(L"\"");
}

std::wstring commandLine(const fs::path& program, const std::vector<std::string>& arguments) {
  std::wstring line = quoted(program.wstring());
  for (const std::string& argument : arguments) {
    line.append(L" ").append(quoted(fs::u8path(argument).wstring()));
  }
  return line;
}

/// A file that a program inherits.
class InheritedFile {
 public:
  InheritedFile(const fs::path& file, DWORD access, DWORD creation) {
    SECURITY_ATTRIBUTES attributes{sizeof attributes, nullptr, TRUE};
    opened = CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &attributes, creation,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
      throw std::runtime_error("cannot open " + file.u8string());
    }
  }
  InheritedFile(const InheritedFile&) = delete;
  InheritedFile& operator=(const InheritedFile&) = delete;
  ~InheritedFile() { CloseHandle(opened); }
  HANDLE handle() const { return opened; }

 private:
  HANDLE opened = INVALID_HANDLE_VALUE;
};

/// Line breaks become plain ones.
std::string textOf(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

int exitCodeOf(const fs::path& program, std::wstring line, const InheritedFile& in, const InheritedFile& out,
               const InheritedFile& err) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = in.handle();
  startup.hStdOutput = out.handle();
  startup.hStdError = err.handle();
  PROCESS_INFORMATION process{};
  if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process) ==
      0) {
    throw std::runtime_error("cannot start " + program.u8string());
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD exitCode = 0;
  GetExitCodeProcess(process.hProcess, &exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(exitCode);
}

}  // namespace

Outcome runProgram(const std::vector<std::string>& arguments, Program program) {
  const fs::path file = fs::u8path(program == Program::Usual ? TINTORA_HOST_PROGRAM : TINTORA_PLAIN_HOST_PROGRAM);
  const TemporaryFolder folder;
  const fs::path outFile = folder.path() / "out.txt";
  const fs::path errFile = folder.path() / "err.txt";
  Outcome outcome;
  {
    const InheritedFile in(L"NUL", GENERIC_READ, OPEN_EXISTING);
    const InheritedFile out(outFile, GENERIC_WRITE, CREATE_ALWAYS);
    const InheritedFile err(errFile, GENERIC_WRITE, CREATE_ALWAYS);
    outcome.exitCode = exitCodeOf(file, commandLine(file, arguments), in, out, err);
  }
  outcome.out = textOf(outFile);
  outcome.err = textOf(errFile);
  return outcome;
}

}  // namespace tests
