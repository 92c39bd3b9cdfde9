// Class ButtonControlDefinition.
#pragma once

#include "../Base.h"
#include "ControlDefinition.h"

namespace adsk {
namespace core {

/// A definition that is shown as a button.
class ButtonControlDefinition : public ControlDefinition {
  ADSK_API_CLASS(ButtonControlDefinition, ControlDefinition)
};

}  // namespace core
}  // namespace adsk
