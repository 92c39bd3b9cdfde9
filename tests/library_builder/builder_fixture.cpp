#include "tests/library_builder/builder_fixture.h"

#include <fstream>
#include <stdexcept>
#include <utility>

#include "tests/support/journal.h"

namespace tests {

void PrintTo(const RalRow& row, std::ostream* stream) {
  *stream << row.name << " " << row.colour;
}

const std::vector<RalRow>& ralTable() {
  static const std::vector<RalRow> rows = [] {
    std::ifstream file(TINTORA_SOURCE_DIR "/host/libraries/tables/ral-classic.csv");
    std::vector<RalRow> read;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
      const std::size_t first = line.find(',');
      const std::size_t second = line.find(',', first + 1);
      read.push_back(
          {"RAL " + line.substr(0, first) + " " + line.substr(first + 1, second - first - 1), line.substr(second + 1)});
    }
    return read;
  }();
  return rows;
}

std::filesystem::path libraryBuilderModule() {
  return TINTORA_LIBRARY_BUILDER;
}

LibraryBuilderTest::~LibraryBuilderTest() {
  EXPECT_THAT(takeErrors(), testing::IsEmpty());
  finish();
}

void LibraryBuilderTest::start(headless::Profile profile) {
  finish();
  session_ = std::make_unique<headless::Session>(std::move(profile));
  if (keepsJournals()) {
    host().gate().startJournal();
  }
}

void LibraryBuilderTest::finish() {
  if (session_ != nullptr && keepsJournals()) {
    keepJournal(host().gate().journalText(), {}, about);
  }
  session_ = nullptr;
  about.clear();
}

bool LibraryBuilderTest::build() {
  return session().runScript(libraryBuilderModule());
}

bool LibraryBuilderTest::buildAndCancelAfter(int steps) {
  session().whileBusy([this, steps] {
    const headless::ProgressView shown = session().progress();
    if (shown.value == steps && shown.hasCancelButton) {
      session().cancelProgress();
    }
  });
  const bool result = build();
  session().whileBusy(nullptr);
  return result;
}

std::vector<RalRow> LibraryBuilderTest::appearances() {
  std::vector<RalRow> rows;
  if (host().document() != nullptr) {
    for (const auto& appearance : session().design().appearances) {
      rows.push_back({appearance->name, headless::model::hexText(appearance->colour)});
    }
  }
  return rows;
}

std::vector<RalRow> LibraryBuilderTest::firstRows(std::size_t count) {
  return {ralTable().begin(), ralTable().begin() + static_cast<std::ptrdiff_t>(count)};
}

std::vector<std::string> LibraryBuilderTest::messages() {
  std::vector<std::string> texts;
  for (const headless::MessageBox& box : session().messageBoxes()) {
    texts.push_back(box.text);
  }
  return texts;
}

headless::MessageBox LibraryBuilderTest::lastMessage() {
  if (session().messageBoxes().empty()) {
    throw std::logic_error("no message was shown");
  }
  return session().messageBoxes().back();
}

std::vector<std::string> LibraryBuilderTest::takeErrors() {
  std::vector<std::string> texts;
  for (const headless::BoundaryError& error : session().takeErrors()) {
    texts.push_back(error.where + ": " + error.what);
  }
  return texts;
}

}  // namespace tests
