// How hosts differ: one switch for each thing that is not documented about the real host and that an add-in can notice.
// The defaults are the documented or the most usual answer. A profile is passed to a session and never changes in it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace headless {

/// What a second load of a library file gives.
enum class SecondLoad { SameLibrary, Nothing };
/// What the controls of a deleted panel are.
enum class DeletedPanelControls { EmptyCollection, Nothing };
/// Whether changes of inputs by program are reported as input-changed events, and when.
enum class Echo { None, AfterEvent, AtOnce };
/// What executing without ending does to a command with a dialog.
enum class ExecuteInDialog { StaysOpen, EndsCommand };
/// What becomes of changes made outside of execute when the user cancels.
enum class CancelledChanges { RolledBack, Kept };
/// What becomes of a library appearance that is set on an entity.
enum class LibraryAppearance { Accepted, Copied, Refused };
/// When an edit of the model made inside an input-changed event clears the selection.
enum class EditClearsSelection { Never, AfterEvent, AtOnce };
/// What executing a definition from the command-terminated event does.
enum class ExecuteFromTerminated { AfterHandlers, AtOnce, Refused };

/// What the path of a library file is taken for. They differ on Windows only.
enum class LibraryPathText { Utf8, CodePage };

/// The switches. Each says what its other values are in its type, or what true means.
struct Profile {
  std::string name = "documented";

  SecondLoad secondLoad = SecondLoad::SameLibrary;
  LibraryPathText libraryPathText = LibraryPathText::Utf8;
  DeletedPanelControls deletedPanelControls = DeletedPanelControls::EmptyCollection;
  Echo echo = Echo::None;
  /// Echoes at once begin with the dialog's construction, not only when it is shown; so does the report of a cleared
  /// selection.
  bool echoWhileBuilding = false;
  /// An input that is set by program to the value that it has already counts as changed, so that it is echoed, too.
  bool unchangedValuesReported = false;
  /// Clearing a selection by program is reported as a change of the selection input.
  bool clearSelectionReported = false;
  /// Executing without ending clears the selection and reports it.
  bool executeClearsSelection = false;
  /// A click on a button raises two events (pressed and released) instead of one.
  bool clickRaisesTwoEvents = false;
  ExecuteInDialog executeInDialog = ExecuteInDialog::StaysOpen;
  /// Executing without ending is refused while an input is invalid, as OK is.
  bool executeNeedsValidInputs = false;
  CancelledChanges cancelledChanges = CancelledChanges::RolledBack;
  /// An input-changed event gives the inputs of the changed input's group instead of the command's.
  bool eventGivesGroupInputs = false;
  /// An own appearance of a body or face is reported as source 4 instead of 1 or 3.
  bool ownAppearanceIsOverride = false;
  LibraryAppearance libraryAppearance = LibraryAppearance::Accepted;
  /// A colour of an appearance is kept as fractions, so that each channel may be read back one less than it was set.
  bool coloursRounded = false;
  /// Every call that gives a model entity gives a new handle object instead of the one known for it.
  bool freshWrappers = false;
  /// The tick of a group's header box is ignored while the box is not displayed.
  bool hiddenTickIgnored = false;
  /// A click on a group's header box also expands or collapses the group.
  bool tickExpandsGroup = false;
  /// What was selected before the command started is put into its selection input once the dialog is shown, and that is
  /// reported. The reference has it as the default of a member that is a preview and that older hosts lack, and says
  /// neither when it happens nor whether an event follows: only the hostile preset does it.
  bool preselectionUsed = false;
  EditClearsSelection editClearsSelection = EditClearsSelection::AfterEvent;
  ExecuteFromTerminated executeFromTerminated = ExecuteFromTerminated::AfterHandlers;
  /// Handlers that are still attached to an event when `stop` returned are reported.
  bool attachedHandlersReported = false;
};

/// Every switch at its easiest: nothing is reported, lost or refused, but for what Cancel rolls back.
Profile lenientProfile();
/// The documented answer where there is one, except for preselectionUsed; the most usual one elsewhere.
Profile documentedProfile();
/// Every switch at its hardest under which an add-in can still do its work. The exceptions are switched on one by one
/// where they are looked at:
/// - Answers that by themselves take the work away: a library that cannot be loaded again (secondLoad), a refused
///   appearance (libraryAppearance), a refused restart (executeFromTerminated), own appearances that are not told apart
///   (ownAppearanceIsOverride), no controls of a deleted panel (deletedPanelControls), an execution that is refused
///   while an input is invalid (executeNeedsValidInputs).
/// - attachedHandlersReported, which is in no preset: it is no answer but a watch over the add-in.
/// - Of two answers that are hard in different ways it takes one: echoes at once, not later (echo); a restart after the
///   handlers, not at once (executeFromTerminated); changes kept after Cancel, not rolled back (cancelledChanges). A
///   command that ends when it is executed (executeInDialog) hides whether that clears the selection.
Profile hostileProfile();

/// The preset of that name; raises std::invalid_argument that lists the names.
Profile profileNamed(std::string_view name);
/// The names of the presets.
std::vector<std::string> profileNames();

}  // namespace headless
