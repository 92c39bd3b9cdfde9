// A module that comes and goes leaves the process as it was: no handle and no memory stays behind.
#include <windows.h>
// Needs windows.h before it.
#include <psapi.h>

#include <cstdint>
#include <cstring>

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

std::size_t committedBytes() {
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return counters.PagefileUsage;
}

TEST(WindowsProcessUsage, ShowsAHandleAndMemoryThatStay) {
  const int handles = openHandles();
  const std::size_t bytes = committedBytes();
  const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  constexpr std::size_t size = 1U << 20U;
  void* const memory = VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  ASSERT_NE(memory, nullptr);
  std::memset(memory, 1, size);
  EXPECT_EQ(openHandles(), handles + 1);
  EXPECT_GE(committedBytes(), bytes + size);
  VirtualFree(memory, 0, MEM_RELEASE);
  CloseHandle(event);
}

class WindowsProcess : public AddInTest {
 protected:
  void comeAndGo(int times) {
    for (int round = 0; round < times; ++round) {
      session().loadAddIn(folder.module());
      ASSERT_TRUE(session().runAddIn());
      ASSERT_TRUE(session().stopAddIn());
      session().unloadAddIn();
    }
  }
};

TEST_F(WindowsProcess, IsLeftAsItWasByAHundredLoads) {
  constexpr int times = 100;
  // It would take memory.
  hasJournal = false;
  load();
  session().unloadAddIn();
  comeAndGo(times);

  const std::size_t before = committedBytes();
  for (int round = 0; round < times; ++round) {
    FreeLibrary(LoadLibraryW(folder.module().c_str()));
  }
  // The system and the compiler's run-time library keep some kilobytes whenever a module comes and goes.
  const std::size_t keptByTheSystem = committedBytes() - before;

  const int handles = openHandles();
  const std::size_t bytes = committedBytes();
  comeAndGo(times);
  EXPECT_EQ(openHandles(), handles);
  constexpr std::size_t lessThanAKilobyteEach = 100 * 1000;
  EXPECT_LT(committedBytes(), bytes + keptByTheSystem + lessThanAKilobyteEach);
}

}  // namespace
}  // namespace tests
