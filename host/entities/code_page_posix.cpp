#include "host/entities/code_page.h"

namespace headless {

std::filesystem::path pathFromCodePage(const std::string& text) {
  return std::filesystem::u8path(text);
}

}  // namespace headless
