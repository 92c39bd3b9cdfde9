// Hosts may report the changes that the add-in itself makes to its inputs as input-changed events. While a guard is
// alive, the dispatcher takes every such event for an echo, so that the add-in does not answer itself; only a change of
// the selection is real in any case. Echoes that a host delivers later cannot be told from the user.
#pragma once

namespace tintora {

/// Lives as long as the add-in is changing inputs. Guards may nest.
class EchoGuard {
 public:
  EchoGuard();
  ~EchoGuard();
  EchoGuard(const EchoGuard&) = delete;
  EchoGuard& operator=(const EchoGuard&) = delete;

  /// Whether any guard is alive.
  static bool active();
};

}  // namespace tintora
