// The Windows calls where there is no Windows. Windows has its own.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <string>

#include "host/win32/desktop.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

namespace desktop = headless::desktop;

std::string toNarrow(const std::wstring& wide, const char* defaultChar = nullptr, BOOL* usedDefault = nullptr) {
  char buffer[100] = {};
  const int size =
      WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), buffer, 100, defaultChar, usedDefault);
  return {buffer, static_cast<std::size_t>(size)};
}

std::wstring toWide(const std::string& narrow) {
  wchar_t buffer[100] = {};
  const int size = MultiByteToWideChar(CP_ACP, 0, narrow.data(), static_cast<int>(narrow.size()), buffer, 100);
  return {buffer, static_cast<std::size_t>(size)};
}

struct TextCase {
  std::wstring wide;
  std::string narrow;
};

class Conversion : public testing::Test, public WithRow<TextCase> {};

TABLE(OfText, Conversion, byNumber,
      {{L"", ""},
       {L"plain", "plain"},
       {L"\x7F\x80", "\x7F\xC2\x80"},
       {L"\x7FF\x800", "\xDF\xBF\xE0\xA0\x80"},
       {L"\xFFFD", "\xEF\xBF\xBD"},
       {L"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"}});

TABLE_TEST(Conversion, GoesBothWays) {
  EXPECT_EQ(toNarrow(row().wide), row().narrow);
  EXPECT_EQ(toWide(row().narrow), row().wide);
}

struct InvalidCase {
  std::string narrow;
  std::wstring wide;
};

class InvalidBytes : public testing::Test, public WithRow<InvalidCase> {};

TABLE(OfNarrowText, InvalidBytes, byNumber,
      {{"a\x80z", L"a\xFFFDz"},
       {"\xFF", L"\xFFFD"},
       {"\xC3", L"\xFFFD"},
       {"\xC3z", L"\xFFFDz"},
       {"\xE2\x82", L"\xFFFD\xFFFD"},
       {"\xC0\xAF", L"\xFFFD\xFFFD"},
       {"\xE0\x80\x80", L"\xFFFD\xFFFD\xFFFD"},
       {"\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"},
       {"\xF0\x8F\xBF\xBF", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
       {"\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
       {"\xF5\x80\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"}});

TABLE_TEST(InvalidBytes, BecomeReplacementCharacters) {
  EXPECT_EQ(toWide(row().narrow), row().wide) << testing::PrintToString(row().narrow);
}

TEST(Conversions, TellTheSizeThatIsNeeded) {
  EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"\xE4z", 2, nullptr, 0, nullptr, nullptr), 3);
  EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "\xC3\xA4z", 3, nullptr, 0), 2);
}

TEST(Conversions, CountTheEndWhenTheLengthIsLeftToThem) {
  EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"ab", -1, nullptr, 0, nullptr, nullptr), 3);
  EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "ab", -1, nullptr, 0), 3);
  char buffer[3] = {'x', 'x', 'x'};
  EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"ab", -1, buffer, 3, nullptr, nullptr), 3);
  EXPECT_STREQ(buffer, "ab");
}

TEST(Conversions, FailWhenTheResultDoesNotFit) {
  char narrow[2] = {};
  EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"abc", 3, narrow, 2, nullptr, nullptr), 0);
  wchar_t wide[2] = {};
  EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "abc", 3, wide, 2), 0);
}

TEST(Conversions, PutTheDefaultWhereThereIsNoCharacter) {
  const std::wstring lone = {L'a', static_cast<wchar_t>(0xD800), L'z'};
  BOOL usedDefault = FALSE;
  EXPECT_EQ(toNarrow(lone, " ", &usedDefault), "a z");
  EXPECT_EQ(usedDefault, TRUE);
  EXPECT_EQ(toNarrow(lone), "a?z");
  EXPECT_EQ(toNarrow(L"az", " ", &usedDefault), "az");
  EXPECT_EQ(usedDefault, FALSE);
}

// The address of anything in a module tells the module, as its load address does.
HMODULE someModule() {
  static int inThisProgram = 0;
  return reinterpret_cast<HMODULE>(&inThisProgram);
}

TEST(PathOfAModule, IsFullAndEnded) {
  std::wstring path(4096, L'x');
  const DWORD length = GetModuleFileNameW(someModule(), path.data(), 4096);
  ASSERT_GT(length, 0U);
  EXPECT_EQ(path[length], L'\0');
  const std::filesystem::path file(path.substr(0, length));
  EXPECT_TRUE(file.is_absolute() && std::filesystem::exists(file)) << file;
}

TEST(PathOfAModule, IsCutToTheBufferAndSaysSo) {
  std::wstring whole(4096, L'x');
  const DWORD length = GetModuleFileNameW(someModule(), whole.data(), 4096);
  std::wstring path(length + 1, L'x');
  EXPECT_EQ(GetModuleFileNameW(someModule(), path.data(), 5), 5U);
  EXPECT_EQ(path.substr(0, 6), whole.substr(0, 4) + L'\0' + L'x');
  EXPECT_EQ(GetModuleFileNameW(someModule(), path.data(), length), length) << "no room for the end";
  EXPECT_EQ(path[length - 1], L'\0');
  EXPECT_EQ(GetModuleFileNameW(someModule(), path.data(), length + 1), length);
  EXPECT_EQ(path[length], L'\0');
}

TEST(PathOfAModule, IsEmptyWithoutAModuleOrABuffer) {
  wchar_t path[10] = {};
  EXPECT_EQ(GetModuleFileNameW(nullptr, path, 10), 0U);
  EXPECT_EQ(GetModuleFileNameW(someModule(), path, 0), 0U);
}

class Desktop : public testing::Test {
 protected:
  Desktop() { desktop::reset(); }
  ~Desktop() override { desktop::reset(); }
};

TEST_F(Desktop, ShowsTheCursorThatWasSetLast) {
  EXPECT_EQ(desktop::cursor().shape, desktop::CursorShape::Arrow);
  const HCURSOR wait = LoadCursorA(nullptr, IDC_WAIT);
  const HCURSOR arrow = SetCursor(wait);
  EXPECT_EQ(desktop::cursor().shape, desktop::CursorShape::Wait);
  EXPECT_EQ(arrow, LoadCursorA(nullptr, IDC_ARROW));
  EXPECT_EQ(SetCursor(arrow), wait);
  EXPECT_EQ(desktop::cursor().shape, desktop::CursorShape::Arrow);
}

TEST_F(Desktop, CountsHowOftenTheCursorIsShown) {
  EXPECT_EQ(ShowCursor(TRUE), 1);
  EXPECT_EQ(ShowCursor(FALSE), 0);
  EXPECT_EQ(ShowCursor(FALSE), -1);
  EXPECT_EQ(desktop::cursor().displayCount, -1);
  desktop::reset();
  EXPECT_EQ(desktop::cursor().displayCount, 0);
}

TEST_F(Desktop, RemembersTheFilesThatWereOpened) {
  const std::string folder = std::filesystem::temp_directory_path().string();
  const auto execute = [](const char* operation, const std::string& file, int show) {
    return reinterpret_cast<std::size_t>(ShellExecuteA(nullptr, operation, file.c_str(), nullptr, nullptr, show));
  };
  EXPECT_GT(execute("open", folder, SW_SHOWNORMAL), 32U);
  EXPECT_EQ(execute("open", "no such file.html", SW_SHOWNORMAL), 2U);
  EXPECT_EQ(execute("print", folder, SW_SHOWNORMAL), 31U);
  constexpr int hidden = 0;
  EXPECT_GT(execute("open", folder, hidden), 32U);
  EXPECT_EQ(desktop::openedFiles(), std::vector<std::string>({folder}));
  desktop::reset();
  EXPECT_TRUE(desktop::openedFiles().empty());
}

}  // namespace
}  // namespace tests

#endif
