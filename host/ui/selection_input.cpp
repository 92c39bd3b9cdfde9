// The selection input, and the rules by which an entity may be picked.
#include <Fusion/FusionAll.h>

#include <algorithm>
#include <array>

#include "host/entities/design_objects.h"
#include "host/ui/inputs.h"

namespace headless {

using adsk::core::Base;
using adsk::core::Ptr;
using adsk::core::Selection;

namespace {

template <class Kind>
bool isA(const Ptr<Base>& entity) {
  return entity->query<Kind>() != nullptr;
}

bool isRootComponent(const Ptr<Base>& entity) {
  const auto* component = objectBehind<ComponentObject>(entity);
  return component != nullptr && &component->data() == &component->data().design->root();
}

struct Filter {
  const char* name;
  bool (*fits)(const Ptr<Base>& entity);
};

constexpr std::array<Filter, 4> knownFilters{{
    {"Occurrences", isA<adsk::fusion::Occurrence>},
    {"RootComponents", isRootComponent},
    {"Bodies", isA<adsk::fusion::BRepBody>},
    {"Faces", isA<adsk::fusion::BRepFace>},
}};

const Filter* filterNamed(const std::string& name) {
  const auto* found =
      std::find_if(knownFilters.begin(), knownFilters.end(), [&](const Filter& each) { return name == each.name; });
  return found == knownFilters.end() ? nullptr : found;
}

bool isFocused(const InputCore* input) {
  return input->enabled && dynamic_cast<const SelectionInput*>(input) != nullptr;
}

}  // namespace

SelectionInput::SelectionInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId,
                               std::string inputLabel, std::string prompt)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)), prompt_(std::move(prompt)) {
  const auto& byId = owner.inputsById();
  enabled = std::none_of(byId.begin(), byId.end(), [](const auto& each) { return isFocused(each.second); });
}

bool SelectionInput::isEnabled(bool value) {
  return setFocus("isEnabled=", value);
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
    // Before the dialog is shown nothing can be selected, and a host that reports then reports that.
    const bool isBeingBuilt = !owner.canSelectByProgram();
    if (dropAll() || isBeingBuilt) {
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
  return setFocus("hasFocus=", value);
}

// The focus goes from one selection input to another; a hidden one cannot have it.
bool SelectionInput::setFocus(const char* member, bool value) {
  return call(
      member,
      [&] {
        if (!visible) {
          return false;
        }
        for (const auto& [id, input] : owner.inputsById()) {
          if (value && isFocused(input)) {
            input->enabled = false;
          }
        }
        enabled = value;
        return true;
      },
      value);
}

std::string SelectionInput::whyRefused(const Ptr<Base>& entity) const {
  if (!isThere(entity)) {
    return "there is nothing to pick";
  }
  const bool passes = filters_.empty() || std::any_of(filters_.begin(), filters_.end(), [&](const std::string& filter) {
                        return filterNamed(filter)->fits(entity);
                      });
  if (!passes) {
    return "the selection filter does not let it through";
  }
  if (maximum_ != 0 && selections.size() >= maximum_) {
    return "no more than " + std::to_string(maximum_) + " may be selected";
  }
  return isPicked(entity) ? "it is selected already" : "";
}

bool SelectionInput::isPicked(const Ptr<Base>& entity) const {
  return identities.count(identityOf(entity)) != 0;
}

void SelectionInput::pick(const Ptr<Base>& entity) {
  selections.push_back(makeObject<SelectionObject>(entity));
  identities.insert(identityOf(entity));
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
  identities.erase(identityOf(entity));
  return true;
}

bool SelectionInput::dropAll() {
  for (const Ptr<SelectionObject>& each : selections) {
    each->markDeleted();
  }
  const bool hadSome = !selections.empty();
  selections.clear();
  identities.clear();
  return hadSome;
}

void SelectionInput::visibilityChanged() {
  if (visible) {
    return;
  }
  enabled = false;
  if (dropAll()) {
    owner.selectionClearedByProgram(*this);
  }
}

void SelectionInput::markGone() {
  dropAll();
  markDeleted();
}

}  // namespace headless
