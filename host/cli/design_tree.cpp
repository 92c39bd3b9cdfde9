#include "host/cli/design_tree.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "host/cli/looks_text.h"
#include "host/cli/text_layout.h"
#include "host/model/resolution.h"

namespace headless::cli {

namespace {

using model::Body;
using model::Component;
using model::Occurrence;
using model::Source;

constexpr std::size_t namedBodies = 3;

const model::Appearance* ownLook(Occurrence& occurrence) {
  const Occurrence* carrier = lookCarrier(occurrence);
  return carrier == nullptr ? nullptr : carrier->appearance.get();
}

/// Numbers occurrences so that two have one number exactly when they and everything below them look the same.
class Alikeness {
 public:
  int numberOf(Occurrence& occurrence) {
    const auto known = numbers.find(&occurrence);
    if (known != numbers.end()) {
      return known->second;
    }
    Key key;
    key.things = {&occurrence.component(), ownLook(occurrence)};
    for (const auto& body : occurrence.component().bodies) {
      key.things.push_back(lookOf(*body, &occurrence).appearance.get());
    }
    for (Occurrence* child : occurrence.children) {
      key.children.push_back(numberOf(*child));
    }
    const int next = static_cast<int>(kinds.size());
    const int number = kinds.try_emplace(std::move(key), next).first->second;
    numbers.emplace(&occurrence, number);
    return number;
  }

 private:
  struct Key {
    std::vector<const void*> things;
    std::vector<int> children;

    friend bool operator<(const Key& a, const Key& b) {
      return std::tie(a.things, a.children) < std::tie(b.things, b.children);
    }
  };

  std::map<Key, int> kinds;
  std::unordered_map<const Occurrence*, int> numbers;
};

/// Puts items with equal keys together, in the order in which the keys first appear.
template <class Key, class Item>
class Groups {
 public:
  void add(const Key& key, Item item) {
    const auto [place, isNew] = places.try_emplace(key, lists.size());
    if (isNew) {
      lists.emplace_back();
    }
    lists[place->second].push_back(std::move(item));
  }
  const std::vector<std::vector<Item>>& all() const { return lists; }

 private:
  std::map<Key, std::size_t> places;
  std::vector<std::vector<Item>> lists;
};

std::string times(std::size_t count) {
  return count == 1 ? "" : " ×" + std::to_string(count);
}

std::string fromText(Source source, Source own) {
  return source == own ? "own" : sourceWord(source);
}

std::string componentMaterial(const Component& component) {
  const auto material = materialOf(component);
  return material == nullptr && component.bodies.empty() ? "" : materialText(material.get());
}

/// Makes the nodes of one design.
class TreeMaker {
 public:
  explicit TreeMaker(TreeDetail treeDetail) : detail(treeDetail) {}

  std::vector<TreeNode> below(const Component& component, const Occurrence* context,
                              const std::vector<Occurrence*>& occurrences) {
    std::vector<TreeNode> nodes;
    addBodies(component, context, nodes);
    Groups<int, Occurrence*> groups;
    int next = 0;
    for (Occurrence* occurrence : occurrences) {
      groups.add(detail == TreeDetail::Grouped ? alikeness.numberOf(*occurrence) : next++, occurrence);
    }
    for (const auto& alike : groups.all()) {
      nodes.push_back(occurrenceNode(alike));
    }
    return nodes;
  }

 private:
  TreeNode occurrenceNode(const std::vector<Occurrence*>& alike) {
    Occurrence& first = *alike.front();
    const Component& component = first.component();
    std::vector<int> counters(alike.size());
    std::transform(alike.begin(), alike.end(), counters.begin(),
                   [](const Occurrence* each) { return each->instance->counter; });
    TreeNode node;
    node.label = component.name + ":" + rangesOf(counters) + times(alike.size());
    if (const Occurrence* carrier = lookCarrier(first)) {
      node.shows = carrier->appearance;
      node.from = "own";
    }
    node.material = componentMaterial(component);
    node.children = below(component, &first, first.children);
    return node;
  }

  void addBodies(const Component& component, const Occurrence* context, std::vector<TreeNode>& nodes) {
    using Key = std::pair<const void*, std::pair<const void*, const void*>>;
    Groups<Key, const Body*> groups;
    for (const auto& body : component.bodies) {
      // Bodies whose faces are listed stand alone.
      const bool standsAlone = detail == TreeDetail::Everything || hasOwnFaces(*body);
      const void* self = standsAlone ? body.get() : nullptr;
      groups.add({self, {body->appearance.get(), body->material.get()}}, body.get());
    }
    for (const auto& alike : groups.all()) {
      nodes.push_back(bodyNode(alike, context));
    }
  }

  TreeNode bodyNode(const std::vector<const Body*>& alike, const Occurrence* context) {
    const Body& first = *alike.front();
    std::vector<std::string> names(alike.size());
    std::transform(alike.begin(), alike.end(), names.begin(), [](const Body* each) { return each->name; });
    const model::Look look = lookOf(first, context);
    TreeNode node;
    node.label = listed(names, namedBodies) + times(alike.size());
    node.shows = look.appearance;
    node.from = fromText(look.source, Source::Body);
    node.material = materialText(first.material.get());
    addFaces(first, context, node.children);
    return node;
  }

  void addFaces(const Body& body, const Occurrence* context, std::vector<TreeNode>& nodes) {
    using Key = std::pair<int, const void*>;
    Groups<Key, int> groups;
    for (std::size_t i = 0; i < body.faces.size(); ++i) {
      const int number = static_cast<int>(i + 1);
      const bool standsAlone = detail == TreeDetail::Everything;
      if (standsAlone || body.faces[i]->appearance) {
        groups.add({standsAlone ? number : 0, body.faces[i]->appearance.get()}, number);
      }
    }
    for (const auto& alike : groups.all()) {
      const model::Look look = lookOf(*body.faces[static_cast<std::size_t>(alike.front() - 1)], context);
      nodes.push_back({"Face" + rangesOf(alike) + times(alike.size()),
                       look.appearance,
                       fromText(look.source, Source::Face),
                       "",
                       {}});
    }
  }

  static bool hasOwnFaces(const Body& body) {
    for (const auto& face : body.faces) {
      if (face->appearance) {
        return true;
      }
    }
    return false;
  }

  TreeDetail detail;
  Alikeness alikeness;
};

}  // namespace

TreeNode treeOf(const model::Design& design, TreeDetail detail) {
  const Component& root = design.root();
  TreeNode node;
  node.label = design.name;
  node.material = componentMaterial(root);
  node.children = TreeMaker(detail).below(root, nullptr, root.occurrences());
  return node;
}

}  // namespace headless::cli
