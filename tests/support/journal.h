// Journals of the host calls of each test, for comparing systems: they are kept where the environment variable
// TINTORA_JOURNALS names a folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace tests {

/// Whether journals are to be kept.
bool keepsJournals();

/// Writes the running test's next journal. The add-in's folder, which is another each time, gets a name that stays, and
/// all separators of paths are made alike. An empty folder stands for none.
void keepJournal(std::string journal, const std::filesystem::path& addInFolder);

/// A number that stands for such a journal where there are too many to keep: any other call or answer changes it.
std::uint64_t digestOfJournal(std::string journal, const std::filesystem::path& addInFolder);

}  // namespace tests
