// Texts in the code page of the system.
#pragma once

#include <filesystem>
#include <string>

namespace headless {

/// The path that a text in the system's "ANSI" code page stands for. Where there is no Windows, that is UTF-8.
std::filesystem::path pathFromCodePage(const std::string& text);

}  // namespace headless
