#include "host/cli/picture_files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>

#include "host/cli/dialog_ids.h"
#include "host/cli/dialog_picture.h"
#include "host/cli/failure.h"
#include "host/files/error.h"

namespace headless::cli {

namespace fs = std::filesystem;

namespace {

constexpr std::array<const char*, 5> iconFiles = {"64x64.png", "32x32@2x.png", "32x32.png", "16x16@2x.png",
                                                  "16x16.png"};

std::string base64(const std::string& bytes) {
  constexpr const char* digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t bits = 0;
    for (std::size_t j = 0; j < 3; ++j) {
      bits = bits << 8U | (j < count ? static_cast<unsigned char>(bytes[i + j]) : 0U);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      text += j <= count ? digits[bits >> (18U - 6U * j) & 63U] : '=';
    }
  }
  return text;
}

IconSource iconsOf(const Sitting& sitting) {
  return [addIn = sitting.addIn().folder()](const std::string& folder) {
    std::string relative = folder;
    std::replace(relative.begin(), relative.end(), '\\', '/');
    return embeddedIcon(addIn / fs::u8path(relative));
  };
}

std::map<std::string, model::Colour> coloursOfChosenLibrary(Sitting& sitting) {
  std::map<std::string, model::Colour> colours;
  const std::string name = sitting.session().input(ids::appearanceLibraries).selectedName();
  sitting.session().host().materials().firstLibrary([&](const model::Library& library) {
    if (library.name != name) {
      return false;
    }
    for (const auto& appearance : library.appearances) {
      colours.emplace(appearance->name, appearance->colour);
    }
    return true;
  });
  return colours;
}

void save(const std::string& content, const fs::path& file) {
  files::AtomicFile output(file);
  std::ofstream stream(output.path(), std::ios::binary);
  stream << content;
  stream.close();
  if (!stream) {
    throw files::Error("Cannot write \"" + file.u8string() + "\": the disk may be full.");
  }
  output.commit();
  std::cout << "Saved " << file.u8string() << "\n";
}

}  // namespace

std::string embeddedIcon(const fs::path& folder) {
  for (const char* name : iconFiles) {
    std::ifstream file(folder / name, std::ios::binary);
    if (file) {
      const std::string bytes{std::istreambuf_iterator<char>(file), {}};
      return "data:image/png;base64," + base64(bytes);
    }
  }
  return {};
}

void saveDialogPicture(Sitting& sitting, const std::string& openList, const fs::path& svg) {
  PictureStyle style;
  style.icon = iconsOf(sitting);
  style.swatches = coloursOfChosenLibrary(sitting);
  style.openList = openList;
  save(dialogPicture(sitting.session().dialog(), style), svg);
}

void saveMessagePicture(Sitting& sitting, const fs::path& svg) {
  const auto& boxes = sitting.session().messageBoxes();
  if (boxes.empty()) {
    throw Failure("The add-in asked nothing, so there is no question to draw in " + svg.u8string() + ".");
  }
  save(messageBoxPicture(boxes.back()), svg);
}

void saveToolbarPicture(Sitting& sitting, const fs::path& svg) {
  save(toolbarPicture(sitting.session().toolbar(), iconsOf(sitting)), svg);
}

}  // namespace headless::cli
