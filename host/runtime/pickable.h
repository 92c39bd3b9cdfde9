// What a person can point at in the open design, by a path that tells it from everything else.
//
// An occurrence is named by its full path ("A:1+B:2"), a body by the occurrence that it is seen through and its name
// ("A:1+B:2/Body1", or "Body1" in the root), a face by its body and its number there ("A:1+B:2/Body1/Face3").
#pragma once

#include <Core/CoreAll.h>

#include <optional>
#include <string>
#include <vector>

#include "host/runtime/host.h"

namespace headless {

/// The kinds of entities, in the order of the add-in's filter buttons.
enum class PickKind { Component, Body, Face };

/// One thing to point at. Refers to the open design.
struct Pickable {
  std::string path;
  model::Occurrence* occurrence = nullptr;
  model::Body* body = nullptr;
  model::Face* face = nullptr;
};

/// Everything of that kind in the order of the tree: the root's own bodies first, then the occurrences depth first.
std::vector<Pickable> pickablesOf(const model::Design& design, PickKind kind);

/// The API's handle to it.
adsk::core::Ptr<adsk::core::Base> handleOf(const Pickable& pickable, EntityStore& entities);

/// The path of an entity that was picked; empty when it is no entity of an open design, and the component's name for a
/// component.
std::string pathOf(const adsk::core::Ptr<adsk::core::Base>& entity);

}  // namespace headless
