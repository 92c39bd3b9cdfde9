// Words that the reader and the writer of design files share.
#pragma once

namespace headless::design_file {

inline constexpr const char* formatName = "headless design";
inline constexpr int formatVersion = 1;

/// In place of a number: the default material, or its appearance.
inline constexpr const char* defaultWord = "default";

}  // namespace headless::design_file
