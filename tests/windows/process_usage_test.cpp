// A module that comes and goes leaves the process as it was: no handle and no memory stays behind.
#include "tests/support/windows_calls.h"
// Needs the Windows calls before it.
#include <psapi.h>

#include <cstdint>
#include <cstring>
#include <filesystem>

#include "tests/support/addin_fixture.h"

namespace tests {
namespace {

/// Handles are multiples of four. Each is tried, as the system's own count is not there everywhere.
int openHandles() {
  constexpr std::uintptr_t highest = 0x4000;
  int count = 0;
  for (std::uintptr_t value = 4; value <= highest; value += 4) {
    DWORD flags = 0;
    count += GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE ? 1 : 0;
  }
  return count;
}

std::int64_t committedBytes() {
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return static_cast<std::int64_t>(counters.PagefileUsage);
}

TEST(WindowsProcessUsage, ShowsAHandleAndMemoryThatStay) {
  const int handles = openHandles();
  const std::int64_t bytes = committedBytes();
  const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  constexpr std::size_t size = 1U << 20U;
  void* const memory = VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  ASSERT_NE(memory, nullptr);
  std::memset(memory, 1, size);
  EXPECT_EQ(openHandles(), handles + 1);
  EXPECT_GE(committedBytes(), bytes + static_cast<std::int64_t>(size));
  VirtualFree(memory, 0, MEM_RELEASE);
  CloseHandle(event);
}

constexpr int times = 100;

int perRound(std::int64_t bytes) {
  return static_cast<int>(bytes / times);
}

class WindowsProcess : public AddInTest {
 protected:
  void comeAndGo() {
    for (int round = 0; round < times; ++round) {
      session().loadAddIn(folder.module());
      ASSERT_TRUE(session().runAddIn());
      ASSERT_TRUE(session().stopAddIn());
      session().unloadAddIn();
    }
  }

  /// A module that does nothing: what stays of it is kept by the system and the compiler's run-time library.
  static void loadAnother() {
    for (int round = 0; round < times; ++round) {
      const HMODULE module = LoadLibraryW(std::filesystem::u8path(MODULE_ONLY_RUN).c_str());
      ASSERT_NE(module, nullptr);
      FreeLibrary(module);
    }
  }
};

TEST_F(WindowsProcess, IsLeftAsItWasByAHundredLoads) {
  // It would take memory.
  hasJournal = false;
  load();
  session().unloadAddIn();
  // The first rounds fill what is filled once.
  comeAndGo();
  loadAnother();

  const std::int64_t before = committedBytes();
  loadAnother();
  const std::int64_t keptBySystem = committedBytes() - before;
  const int handles = openHandles();
  const std::int64_t bytes = committedBytes();
  comeAndGo();
  const std::int64_t kept = committedBytes() - bytes;

  RecordProperty("bytesKeptPerLoadOfAnotherModule", perRound(keptBySystem));
  RecordProperty("bytesKeptPerLoadOfTheModule", perRound(kept));
  EXPECT_EQ(openHandles(), handles);
  constexpr std::int64_t kilobyteEach = times * 1000;
  EXPECT_LT(kept, keptBySystem + kilobyteEach);
  constexpr std::int64_t mostOfTheSystem = 16 * kilobyteEach;
  EXPECT_LT(keptBySystem, mostOfTheSystem) << "the system keeps so much that nothing could be seen beside it";
}

}  // namespace
}  // namespace tests
