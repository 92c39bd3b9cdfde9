// Hosts may report the changes that the add-in itself makes to its inputs as input-changed events. While a guard is
// alive, the dispatcher takes such events for echoes, so that the add-in does not answer itself. Echoes that a host
// delivers later cannot be told from the user.
#pragma once

namespace tintora {

/// What is taken for an echo: while inputs are being changed, a change of the selection is real all the same; while the
/// dialog is being built, nobody can have changed anything yet, and not all inputs are there to be asked.
enum class Echoes { allButSelection, all };

/// Lives as long as the add-in is changing inputs. Guards may nest.
class EchoGuard {
 public:
  explicit EchoGuard(Echoes echoes = Echoes::allButSelection);
  ~EchoGuard();
  EchoGuard(const EchoGuard&) = delete;
  EchoGuard& operator=(const EchoGuard&) = delete;

  /// Whether any guard is alive that takes the change of an input, or of the selection, for an echo.
  static bool takesInputs();
  static bool takesSelection();

 private:
  Echoes kind_;
};

}  // namespace tintora
