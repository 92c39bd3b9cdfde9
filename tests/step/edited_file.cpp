#include "tests/step/edited_file.h"

#include <stdexcept>

#include "tests/step/made_designs.h"

namespace headless::step {

EditedFile::EditedFile(const std::filesystem::path& written) {
  content = std::regex_replace(contentOf(written), std::regex("([^;])\r?\n *"), "$1");
}

std::string EditedFile::find(const std::string& pattern, std::size_t occurrence) const {
  const std::regex expression(pattern);
  std::sregex_iterator match(content.begin(), content.end(), expression);
  for (; occurrence > 0 && match != std::sregex_iterator(); --occurrence) {
    ++match;
  }
  if (match == std::sregex_iterator()) {
    throw std::out_of_range("the file has nothing like " + pattern);
  }
  return (*match)[1].str();
}

void EditedFile::replace(const std::string& pattern, const std::string& by) {
  edit(pattern, by, std::regex_constants::match_default);
}

void EditedFile::replaceFirst(const std::string& pattern, const std::string& by) {
  edit(pattern, by, std::regex_constants::format_first_only);
}

std::string EditedFile::add(const std::string& entity) {
  const std::string number = "#" + std::to_string(nextNumber++);
  content.insert(content.rfind("ENDSEC;"), number + " = " + entity + ";\n");
  return number;
}

void EditedFile::edit(const std::string& pattern, const std::string& by, std::regex_constants::match_flag_type flags) {
  const std::regex expression(pattern);
  if (!std::regex_search(content, expression)) {
    throw std::out_of_range("the file has nothing like " + pattern);
  }
  content = std::regex_replace(content, expression, by, flags);
}

void EditedFile::save(const std::filesystem::path& file) const {
  fillFile(file, content);
}

}  // namespace headless::step
