// Journals of the host calls of each test, for comparing systems: they are kept where the environment variable
// TINTORA_JOURNALS names a folder, a file for each test.
//
// A file holds a sitting after the other, each below a heading, "=sitting 1". As sittings are much alike, a line is
// written out where it occurs first in the file, after a "+", and is known by its number from then on: "7" stands for
// the seventh "+", and "7-9" for three in a row.
#pragma once

#include <filesystem>
#include <string>

namespace tests {

/// Whether journals are to be kept.
bool keepsJournals();

/// Adds a sitting to the running test's journal; `about` tells it from the test's others. The add-in's folder, which is
/// another each time, gets a name that stays, and the separators of paths below it, "resources/..." too, are made
/// alike. An empty folder stands for none.
void keepJournal(std::string calls, const std::filesystem::path& addInFolder, const std::string& about = {});

}  // namespace tests
