#include "host/step/occurrence_looks.h"

#include <utility>

namespace headless::step {

namespace {

bool leadsTo(const OccurrenceLooks::Path& path, const model::Occurrence& occurrence) {
  const model::Occurrence* node = &occurrence;
  for (auto instance = path.rbegin(); instance != path.rend(); ++instance) {
    if (node == nullptr || node->instance != *instance) {
      return false;
    }
    node = node->parent;
  }
  return true;
}

}  // namespace

void OccurrenceLooks::add(Path path, std::shared_ptr<const model::Appearance> appearance) {
  std::vector<Look>& ofInstance = looks[path.back()];
  for (Look& look : ofInstance) {
    if (look.path == path) {
      look.appearance = std::move(appearance);
      return;
    }
  }
  ofInstance.push_back({std::move(path), std::move(appearance)});
}

void OccurrenceLooks::applyTo(const model::Design& design) const {
  if (looks.empty()) {
    return;
  }
  for (model::Occurrence* occurrence : design.root().allOccurrences()) {
    const auto found = looks.find(occurrence->instance);
    if (found == looks.end()) {
      continue;
    }
    std::size_t longest = 0;
    for (const Look& look : found->second) {
      if (look.path.size() > longest && leadsTo(look.path, *occurrence)) {
        longest = look.path.size();
        occurrence->appearance = look.appearance;
      }
    }
  }
}

}  // namespace headless::step
