#include "host/cli/picking.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/cli/failure.h"
#include "host/cli/glob.h"
#include "host/cli/text_layout.h"
#include "host/libraries/suggestions.h"

namespace headless::cli {

namespace {

constexpr std::array<PickKind, 3> kinds = {PickKind::Component, PickKind::Body, PickKind::Face};

// Looking for near paths among more than this takes longer than anybody waits for an error message.
constexpr std::size_t comparablePaths = 20'000;
constexpr std::size_t shownPaths = 4;
constexpr std::size_t suggestedPaths = 3;

bool matches(const std::string& pattern, const std::string& path) {
  return pattern == path || matchesGlob(pattern, path);
}

std::size_t countOf(const std::vector<Pickable>& objects, const std::string& pattern) {
  return static_cast<std::size_t>(
      std::count_if(objects.begin(), objects.end(), [&](const Pickable& each) { return matches(pattern, each.path); }));
}

// The pattern may be meant for another filter: "rod*" is no body, but bodies are in it.
std::string hintAboutOtherKinds(const model::Design& design, PickKind kind, const std::string& pattern) {
  for (const PickKind other : kinds) {
    const std::size_t count = other == kind ? 0 : countOf(pickablesOf(design, other), pattern);
    if (count > 0) {
      return "; it matches " + countedKind(count, other) + ", for which there is --filter " +
             kindWords[static_cast<std::size_t>(other)];
    }
  }
  return "";
}

std::vector<std::string> partsOf(const std::string& text, const char* separators) {
  std::vector<std::string> parts;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t to = std::min(text.find_first_of(separators, from), text.size());
    parts.push_back(text.substr(from, to - from));
    from = to + 1;
  }
  return parts;
}

// "Arm:1+Pin:2/Shaft" gives Arm, Pin and Shaft.
std::vector<std::string> namesIn(const std::string& path) {
  std::vector<std::string> names = partsOf(path, "+/");
  for (std::string& name : names) {
    name.resize(std::min(name.rfind(':'), name.size()));
  }
  return names;
}

std::string longestLiteralOf(const std::string& pattern) {
  const std::vector<std::string> literals = partsOf(pattern, "*?[]\\+/:");
  return *std::max_element(literals.begin(), literals.end(),
                           [](const std::string& a, const std::string& b) { return a.size() < b.size(); });
}

bool holds(const std::vector<std::string>& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// A pattern with stars is like no whole path, but what it says literally may be like a name in some.
std::vector<std::string> pathsWithNearName(const std::string& pattern, const std::vector<std::string>& paths) {
  std::vector<std::string> names;
  for (const std::string& path : paths) {
    for (std::string& name : namesIn(path)) {
      names.push_back(std::move(name));
    }
  }
  const std::vector<std::string> nearest = libraries::nearestNames(longestLiteralOf(pattern), names, 1);
  std::vector<std::string> found;
  if (nearest.empty()) {
    return found;
  }
  for (const std::string& path : paths) {
    if (found.size() < suggestedPaths && holds(namesIn(path), nearest.front()) && !holds(found, path)) {
      found.push_back(path);
    }
  }
  return found;
}

std::string hintAboutPaths(const std::vector<Pickable>& objects, const std::string& pattern) {
  std::vector<std::string> paths(objects.size());
  std::transform(objects.begin(), objects.end(), paths.begin(), [](const Pickable& each) { return each.path; });
  if (paths.size() <= comparablePaths) {
    std::string near = didYouMean(pattern, paths);
    if (near.empty()) {
      near = choiceOf(pathsWithNearName(pattern, paths));
    }
    if (!near.empty()) {
      return near;
    }
  }
  return paths.empty() ? "; there are none in this design" : "; there are " + listed(paths, shownPaths);
}

[[noreturn]] void failMatching(const model::Design& design, const std::filesystem::path& file, PickKind kind,
                               const std::vector<Pickable>& objects, const std::string& pattern) {
  const std::string otherKind = hintAboutOtherKinds(design, kind, pattern);
  throw Failure(file.u8string() + ": no " + kindWords[static_cast<std::size_t>(kind)] + " of " + design.name +
                " matches \"" + pattern + "\"" + (otherKind.empty() ? hintAboutPaths(objects, pattern) : otherKind));
}

}  // namespace

std::string countedKind(std::size_t count, PickKind kind) {
  return counted(count, kindWords[static_cast<std::size_t>(kind)], kind == PickKind::Body ? "bodies" : "");
}

std::vector<Pickable> matching(const model::Design& design, const std::filesystem::path& file, PickKind kind,
                               const std::vector<std::string>& patterns) {
  std::vector<Pickable> objects = pickablesOf(design, kind);
  std::vector<bool> isUsed(patterns.size(), false);
  std::vector<Pickable> found;
  for (const Pickable& each : objects) {
    bool isMatched = false;
    for (std::size_t i = 0; i < patterns.size(); ++i) {
      if (matches(patterns[i], each.path)) {
        isUsed[i] = true;
        isMatched = true;
      }
    }
    if (isMatched) {
      found.push_back(each);
    }
  }
  for (std::size_t i = 0; i < patterns.size(); ++i) {
    if (!isUsed[i]) {
      failMatching(design, file, kind, objects, patterns[i]);
    }
  }
  return found;
}

}  // namespace headless::cli
