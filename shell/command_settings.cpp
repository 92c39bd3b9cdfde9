// Reading, writing and applying the settings file.
#include "shell/command_settings.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "dialog/item_lists.h"
#include "dialog/selection_filter.h"
#include "shell/globals.h"
#include "shell/module_path.h"

namespace tintora {

namespace {

namespace fs = std::filesystem;

/// Place of each value in the file, one a line.
enum SettingsLine : std::size_t {
  filterModeLine,
  appearanceExpandedLine,
  appearanceLibraryLine,
  appearanceLine,
  materialExpandedLine,
  materialLibraryLine,
  materialLine,
  appearanceTickedLine,
  materialTickedLine,
  settingsLineCount
};

using Settings = std::array<std::string, settingsLineCount>;
using Lines = std::vector<std::string>;

/// Names the user in the file's name; empty when nobody is signed in.
std::string hostUserString() {
  const Ptr<core::User> user = appHandle->currentUser();
  return user ? user->userId() : std::string();
}

bool fileExists(const fs::path& file) {
  std::error_code unreadableMeansMissing;
  return fs::exists(file, unreadableMeansMissing);
}

/// Nothing when the file cannot be opened.
std::optional<Lines> readLines(const fs::path& file) {
  std::ifstream stream(file);
  if (!stream) {
    return std::nullopt;
  }
  Lines lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::string flagText(bool flag) {
  return flag ? "1" : "0";
}

Settings dialogState() {
  Settings state;
  state[filterModeLine] = std::to_string(selectedFilterMode());
  state[appearanceExpandedLine] = flagText(groupAppearanceInput->isExpanded());
  state[appearanceLibraryLine] = libAssetsInput->selectedItem()->name();
  state[appearanceLine] = appearanceListInput->selectedItem()->name();
  state[materialExpandedLine] = flagText(groupMaterialInput->isExpanded());
  state[materialLibraryLine] = libMaterialsInput->selectedItem()->name();
  state[materialLine] = materialListInput->selectedItem()->name();
  state[appearanceTickedLine] = flagText(groupAppearanceInput->isEnabledCheckBoxChecked());
  state[materialTickedLine] = flagText(groupMaterialInput->isEnabledCheckBoxChecked());
  return state;
}

void createFile(const fs::path& file, const Settings& state) {
  std::ofstream stream(file);
  stream << state.front();
  for (std::size_t line = 1; line < state.size(); ++line) {
    stream << '\n' << state[line];
  }
}

void updateFile(const fs::path& file, const Settings& state) {
  std::optional<Lines> lines = readLines(file);
  if (!lines) {
    // What cannot be read would be lost by writing.
    return;
  }
  if (!lines->empty()) {
    lines->resize(std::max(lines->size(), state.size()));
    std::copy(state.begin(), state.end(), lines->begin());
  }
  std::ofstream stream(file);
  for (const std::string& line : *lines) {
    stream << line << '\n';
  }
}

/// The number that a text begins with, after white space and a sign. The standard library's parser behaves the same
/// but for its texts, which differ from one library to the next.
int parseInteger(const std::string& text) {
  std::size_t position = std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size());
  const bool negative = position < text.size() && text[position] == '-';
  if (negative || (position < text.size() && text[position] == '+')) {
    ++position;
  }
  const auto digitAt = [&text](std::size_t at) { return at < text.size() && text[at] >= '0' && text[at] <= '9'; };
  if (!digitAt(position)) {
    throw std::invalid_argument("invalid stoi argument");
  }
  std::int64_t value = 0;
  for (; digitAt(position); ++position) {
    const int digit = text[position] - '0';
    value = value * 10 + (negative ? -digit : digit);
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
      throw std::out_of_range("stoi argument out of range");
    }
  }
  return static_cast<int>(value);
}

bool parseFlag(const std::string& text) {
  return parseInteger(text) != 0;
}

void selectFilterMode(const std::string& index) {
  filterSelectInput->listItems()->item(static_cast<std::size_t>(parseInteger(index)))->isSelected(true);
  setupSelectionFilter();
}

void selectItemNamed(const Ptr<core::DropDownCommandInput>& list, const std::string& name) {
  for (const auto& item : items(list->listItems())) {
    if (item->name() == name) {
      item->isSelected(true);
      return;
    }
  }
}

/// Selects a library and lists its materials. An appearance library refills the material list too; the material
/// library that is restored after it has the last word there.
void restoreLibrary(const Ptr<core::DropDownCommandInput>& libraries, const std::string& name) {
  selectItemNamed(libraries, name);
  addPlainItems(materialListInput, listMaterialNames(name, ""));
}

void apply(const Lines& lines) {
  const auto present = [&lines](SettingsLine line) { return line < lines.size(); };
  if (present(filterModeLine)) {
    selectFilterMode(lines[filterModeLine]);
  }
  if (present(appearanceExpandedLine)) {
    groupAppearanceInput->isExpanded(parseFlag(lines[appearanceExpandedLine]));
  }
  if (present(appearanceTickedLine)) {
    groupAppearanceInput->isEnabledCheckBoxChecked(parseFlag(lines[appearanceTickedLine]));
  }
  if (present(appearanceLibraryLine)) {
    restoreLibrary(libAssetsInput, lines[appearanceLibraryLine]);
  }
  if (present(appearanceLine)) {
    selectItemNamed(appearanceListInput, lines[appearanceLine]);
  }
  if (present(materialExpandedLine)) {
    groupMaterialInput->isExpanded(parseFlag(lines[materialExpandedLine]));
  }
  if (present(materialTickedLine)) {
    groupMaterialInput->isEnabledCheckBoxChecked(parseFlag(lines[materialTickedLine]));
  }
  if (present(materialLibraryLine)) {
    restoreLibrary(libMaterialsInput, lines[materialLibraryLine]);
  }
  if (present(materialLine)) {
    selectItemNamed(materialListInput, lines[materialLine]);
  }
}

}  // namespace

std::string settingsFilePath() {
  return pathBesideModule("_" + hostUserString() + "_CmdSet.txt");
}

void saveCommandSettings() {
  const fs::path file = toSystemPath(settingsFilePath());
  const Settings state = dialogState();
  if (fileExists(file)) {
    updateFile(file, state);
  } else {
    createFile(file, state);
  }
}

void loadCommandSettings() {
  const fs::path file = toSystemPath(settingsFilePath());
  const std::optional<Lines> lines = readLines(file);
  if (lines) {
    apply(*lines);
  }
}

}  // namespace tintora
