// Class Workspace.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class ToolbarPanels;
class ToolbarTabs;

/// A workspace with its tabs and panels. All members are documented.
class Workspace : public Base {
  ADSK_API_CLASS(Workspace, Base)

  /// Independent of the language.
  virtual std::string id() const = 0;
  /// Name as shown.
  virtual std::string name() const = 0;
  /// Its tabs.
  virtual Ptr<ToolbarTabs> toolbarTabs() const = 0;
  /// The panels of all tabs.
  virtual Ptr<ToolbarPanels> toolbarPanels() const = 0;
  /// True for the one on screen; our host has one, which always is.
  virtual bool isActive() const = 0;
  /// True for the host's own.
  virtual bool isNative() const = 0;
};

}  // namespace core
}  // namespace adsk
