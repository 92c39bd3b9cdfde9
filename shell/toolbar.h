// The add-in's two buttons, the command and its help, on two tabs of the host's solid-modelling workspace.
#pragma once

namespace tintora {

/// Creates the panels, definitions and controls and attaches the handlers. False when the host lacks a place or
/// refuses a definition, a control or a handler; what was created before stays, for `removeUserInterface` to find.
/// Raises the null-access exception for a collection or panel that the host does not return.
/// [from `run`, with `uiHandle` set]
bool setupUserInterface();

/// Deletes the panels, definitions and controls that are still there. False, without having deleted anything, when the
/// workspace is missing. [from `stop`, with `uiHandle` set]
bool removeUserInterface();

}  // namespace tintora
