#include <windows.h>

#include "host/entities/code_page.h"

namespace headless {

std::filesystem::path pathFromCodePage(const std::string& text) {
  const auto bytes = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

}  // namespace headless
