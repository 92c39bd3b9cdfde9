// What the tests of the settings file have in common.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/addin_fixture.h"

namespace tests {

/// A text with line feeds as a file holds it that this system's standard library writes.
inline std::string onDisk(const std::string& text) {
  if (static_cast<char>(std::filesystem::path::preferred_separator) == '/') {
    return text;
  }
  std::string bytes;
  for (const char letter : text) {
    bytes += letter == '\n' ? "\r\n" : std::string(1, letter);
  }
  return bytes;
}

inline std::string joinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += &line == &lines.front() ? line : "\n" + line;
  }
  return text;
}

/// What the dialog of the fixture saves when nothing was changed in it.
inline const std::vector<std::string> defaultLines = {
    "1", "1", "RAL_COLORS", "RAL 1000 Green beige", "1", "Metals", "Steel 37", "1", "1"};

/// The libraries are RAL_COLORS and "Second", "Metals" and "Stones"; the former ones are chosen in a new dialog.
class SettingsTest : public AddInTest {
 protected:
  SettingsTest() {
    folder.writeLibraries(appearancesFolder, {appearanceLibrary("RAL_COLORS", ralNames),
                                              appearanceLibrary("Second", {"Oak tree", "Pine tree"})});
    folder.writeLibraries(materialsFolder,
                          {materialLibrary("Metals", metals), materialLibrary("Stones", {{"Basalt"}, {"Granite"}})});
  }

  void writeSettings(const std::string& text) const { folder.write(settingsFile(), onDisk(text)); }
  void writeSettings(const std::vector<std::string>& lines) const { writeSettings(joinLines(lines)); }
  std::string savedSettings() const { return folder.read(settingsFile()); }

  /// Picks a body and applies, which saves.
  void apply(const std::string& picked = "Base") {
    session().clearPicks();
    session().pick(picked);
    session().click("idBtnApply");
  }

  /// The saved choices as the dialog shows them, in the order in which they are restored.
  std::vector<std::string> choices() {
    const auto flag = [](bool value) { return std::string(value ? "1" : "0"); };
    const headless::InputView appearance = session().input("idGroupAppearance");
    const headless::InputView material = session().input("idGroupMaterial");
    return {shown("idFilterSelect"), flag(appearance.isExpanded), flag(appearance.isTicked),
            shown("idLibAssets"),    shown("idAppearanceList"),   flag(material.isExpanded),
            flag(material.isTicked), shown("idLibMaterials"),     shown("idMaterialList")};
  }
};

}  // namespace tests
