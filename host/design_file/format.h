// Words that the reader and the writer of design files share.
#pragma once

#include <array>

namespace headless::design_file {

inline constexpr const char* formatName = "headless design";
inline constexpr int formatVersion = 1;

/// In place of a number: the default material, or its appearance.
inline constexpr const char* defaultWord = "default";

/// The kinds of surfaces, in the order of model::Surface.
inline constexpr std::array<const char*, 3> surfaceWords = {"opaque", "metal", "transparent"};

}  // namespace headless::design_file
