// What a module gives to whoever loads it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tests {

/// The names that the module exports, sorted. Raises std::runtime_error when they cannot be read.
std::vector<std::string> exportedNames(const std::filesystem::path& module);

}  // namespace tests
