// The selection input, and the rules by which an entity may be picked.
#include <Fusion/FusionAll.h>

#include <algorithm>
#include <array>

#include "host/ui/inputs.h"

namespace headless {

using adsk::core::Base;
using adsk::core::Ptr;
using adsk::core::Selection;

namespace {

bool isRootComponent(const Ptr<Base>& entity) {
  return entity->objectType() == adsk::fusion::Component::classType();
}

struct Filter {
  const char* name;
  bool (*fits)(const Ptr<Base>& entity);
};

constexpr std::array<Filter, 4> knownFilters{{
    {"Occurrences", [](const Ptr<Base>& e) { return e->objectType() == adsk::fusion::Occurrence::classType(); }},
    {"RootComponents", isRootComponent},
    {"Bodies", [](const Ptr<Base>& e) { return e->objectType() == adsk::fusion::BRepBody::classType(); }},
    {"Faces", [](const Ptr<Base>& e) { return e->objectType() == adsk::fusion::BRepFace::classType(); }},
}};

const Filter* filterNamed(const std::string& name) {
  const auto* found =
      std::find_if(knownFilters.begin(), knownFilters.end(), [&](const Filter& each) { return name == each.name; });
  return found == knownFilters.end() ? nullptr : found;
}

}  // namespace

SelectionInput::SelectionInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId,
                               std::string inputLabel, std::string prompt)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)), prompt_(std::move(prompt)) {}

bool SelectionInput::isEnabled() const {
  return hasFocus();
}

bool SelectionInput::isEnabled(bool value) {
  return hasFocus(value);
}

bool SelectionInput::setSelectionLimits(size_t minimum, size_t maximum) {
  return call(
      "setSelectionLimits",
      [&] {
        if (maximum != 0 && maximum < minimum) {
          return false;
        }
        minimum_ = minimum;
        maximum_ = maximum;
        return true;
      },
      minimum, maximum);
}

bool SelectionInput::getSelectionLimits(size_t& minimum, size_t& maximum) {
  return call("getSelectionLimits", [&] {
    minimum = minimum_;
    maximum = maximum_;
    return true;
  });
}

size_t SelectionInput::selectionCount() const {
  return call("selectionCount", [this] { return selections.size(); });
}

Ptr<Selection> SelectionInput::selection(size_t index) const {
  return call(
      "selection",
      [&]() -> Ptr<Selection> { return index < selections.size() ? Ptr<Selection>(selections[index]) : nullptr; },
      index);
}

bool SelectionInput::addSelection(const Ptr<Base>& selection) {
  return call(
      "addSelection",
      [&] {
        if (!owner.canSelectByProgram() || !whyRefused(selection).empty()) {
          return false;
        }
        pick(selection);
        owner.inputChangedByProgram(*this);
        return true;
      },
      selection);
}

bool SelectionInput::clearSelection() {
  return call("clearSelection", [this] {
    if (dropAll()) {
      owner.selectionClearedByProgram(*this);
    }
    return true;
  });
}

bool SelectionInput::addSelectionFilter(const std::string& filter) {
  return call(
      "addSelectionFilter",
      [&] {
        if (filterNamed(filter) == nullptr) {
          return false;
        }
        filters_.push_back(filter);
        return true;
      },
      filter);
}

bool SelectionInput::clearSelectionFilter() {
  return call("clearSelectionFilter", [this] {
    filters_.clear();
    return true;
  });
}

std::vector<std::string> SelectionInput::selectionFilters() const {
  return call("selectionFilters", [this] { return filters_; });
}

bool SelectionInput::selectionFilters(const std::vector<std::string>& value) {
  return call(
      "selectionFilters=",
      [&] {
        const bool areKnown =
            std::all_of(value.begin(), value.end(), [](const auto& each) { return filterNamed(each) != nullptr; });
        filters_ = areKnown ? value : filters_;
        return areKnown;
      },
      value);
}

std::string SelectionInput::commandPrompt() const {
  return call("commandPrompt", [this] { return prompt_; });
}

bool SelectionInput::commandPrompt(const std::string& value) {
  return call(
      "commandPrompt=",
      [&] {
        prompt_ = value;
        return true;
      },
      value);
}

bool SelectionInput::hasFocus() const {
  return call("hasFocus", [this] { return enabled; });
}

bool SelectionInput::hasFocus(bool value) {
  return call(
      "hasFocus=",
      [&] {
        if (visible) {
          enabled = value;
        }
        return visible;
      },
      value);
}

std::string SelectionInput::whyRefused(const Ptr<Base>& entity) const {
  if (!entity) {
    return "there is nothing to pick";
  }
  const bool isKnown =
      std::any_of(knownFilters.begin(), knownFilters.end(), [&](const Filter& filter) { return filter.fits(entity); });
  const bool passes =
      filters_.empty() ? isKnown : std::any_of(filters_.begin(), filters_.end(), [&](const std::string& filter) {
        return filterNamed(filter)->fits(entity);
      });
  if (!passes) {
    return "the selection filter does not let it through";
  }
  if (maximum_ != 0 && selections.size() >= maximum_) {
    return "no more than " + std::to_string(maximum_) + " may be selected";
  }
  const bool isSelected = std::any_of(selections.begin(), selections.end(), [&](const Ptr<SelectionObject>& each) {
    return isSameEntity(each->picked(), entity);
  });
  return isSelected ? "it is selected already" : "";
}

void SelectionInput::pick(const Ptr<Base>& entity) {
  selections.push_back(makeObject<SelectionObject>(entity));
}

bool SelectionInput::unpick(const Ptr<Base>& entity) {
  const auto found = std::find_if(selections.begin(), selections.end(), [&](const Ptr<SelectionObject>& each) {
    return isSameEntity(each->picked(), entity);
  });
  if (found == selections.end()) {
    return false;
  }
  (*found)->markDeleted();
  selections.erase(found);
  return true;
}

bool SelectionInput::dropAll() {
  for (const Ptr<SelectionObject>& each : selections) {
    each->markDeleted();
  }
  const bool hadSome = !selections.empty();
  selections.clear();
  return hadSome;
}

void SelectionInput::visibilityChanged() {
  if (!visible && dropAll()) {
    owner.selectionClearedByProgram(*this);
  }
}

void SelectionInput::markGone() {
  dropAll();
  markDeleted();
}

}  // namespace headless
