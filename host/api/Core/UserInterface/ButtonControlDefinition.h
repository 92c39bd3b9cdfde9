// Class ButtonControlDefinition.
#pragma once

#include "../Base.h"
#include "ControlDefinition.h"

namespace adsk {
namespace core {

/// A definition that is shown as a button, as one is that was made by addButtonDefinition (documented).
class ButtonControlDefinition : public ControlDefinition {
  ADSK_API_CLASS(ButtonControlDefinition, ControlDefinition)
};

}  // namespace core
}  // namespace adsk
