// Journals of the host calls of each test, for comparing systems: they are kept where the environment variable
// TINTORA_JOURNALS names a folder.
#pragma once

#include <filesystem>
#include <string>

namespace tests {

/// Whether journals are to be kept.
bool keepsJournals();

/// Writes the running test's next journal. The add-in's folder, which is another each time, gets a name that stays, and
/// all separators of paths are made alike.
void keepJournal(std::string journal, const std::filesystem::path& addInFolder);

}  // namespace tests
