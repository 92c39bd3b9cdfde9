// A person at the host: opens a design, starts the add-in, presses buttons, picks, chooses, types, answers, undoes, and
// sees what is on screen. Everything that a person cannot do is refused with a UserError that says why.
#pragma once

#include <Core/CoreAll.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "host/runtime/host.h"
#include "host/runtime/module.h"
#include "host/runtime/pickable.h"
#include "host/runtime/profile.h"
#include "host/ui/screen.h"

namespace headless {

/// The person tried something that is not possible, such as clicking a button that is greyed out.
class UserError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One sitting at one host. At its end the add-in is unloaded before the host goes.
class Session {
 public:
  explicit Session(Profile profile = documentedProfile());
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session();

  Host& host() { return *host_; }

  /// Loads the module file; raises std::runtime_error when that fails. The module must not be loaded yet.
  void loadAddIn(const std::filesystem::path& moduleFile);
  bool isAddInLoaded() const { return module_ != nullptr; }
  /// Calls `run`; what it answered, or false when it raised. Raises UserError when no module is loaded.
  bool runAddIn();
  /// Calls `stop`; what it answered, or false when it raised. Raises UserError when no module is loaded.
  bool stopAddIn();
  /// Unloads the module, as the host does after `stop`.
  void unloadAddIn();

  /// Loads a script module, calls its `run` and unloads it, all before it returns, as the host does with scripts: what
  /// `run` answered, or false when it raised. Raises std::runtime_error when the module cannot be loaded. A progress
  /// dialog that the script leaves behind is reported.
  bool runScript(const std::filesystem::path& moduleFile);
  /// What the person does each time a module lets the host work off its events; empty for nothing.
  void whileBusy(std::function<void()> action) { host_->whileBusy = std::move(action); }
  /// The progress dialog that is shown; raises UserError when there is none.
  ProgressView progress() const;
  bool isProgressShown() const { return host_->ui().shownProgress() != nullptr; }
  /// Presses the Cancel button of the progress dialog; raises UserError when there is none.
  void cancelProgress();

  void openDesign(std::unique_ptr<model::Design> design);
  void closeDocument();
  /// The open design; raises UserError when there is none.
  model::Design& design();

  /// Presses the toolbar button of a command.
  void press(const std::string& commandId);
  /// Points at the entity: picks it, or lets go of it when it is picked already. Without a dialog, this is the idle
  /// selection.
  void pick(const Pickable& pickable);
  /// The same by path; the kind is found by the path.
  void pick(const std::string& path);
  void pick(const adsk::core::Ptr<adsk::core::Base>& entity);
  /// Drags a window around them: those that are not picked yet are picked, in that order, and reported once. Needs an
  /// open dialog.
  void pickAll(const std::vector<Pickable>& pickables);
  /// Lets go of everything that is picked.
  void clearPicks();
  /// Chooses an item of a drop-down by name, or of a button row by its label; the first of that name.
  void choose(const std::string& inputId, const std::string& itemName);
  void choose(const std::string& inputId, std::size_t index);
  /// Replaces the text of a line or of an editable text box, key by key; goes on with a text that begins so already.
  void type(const std::string& inputId, const std::string& text);
  /// Ticks or unticks a check box, or the box in the header of a group; nothing happens when it is so already.
  void tick(const std::string& inputId, bool isTicked);
  /// Opens or closes a group; nothing happens when it is so already.
  void expand(const std::string& groupId, bool isExpanded);
  /// Clicks a button of the dialog.
  void click(const std::string& inputId);
  void pressOk();
  /// Presses Cancel, whatever its text is.
  void pressCancel();
  void pressEscape();
  void undo();
  void redo();

  /// Answers the next question; see MessageBoxes.
  void answerNext(adsk::core::DialogResults answer) { host_->ui().boxes().answerNext(answer); }
  void answerAlways(adsk::core::DialogResults answer) { host_->ui().boxes().answerAlways(answer); }

  /// The open dialog; raises UserError when there is none.
  DialogView dialog() const;
  bool isDialogOpen() const { return host_->ui().runner().isDialogOpen(); }
  /// One input of the open dialog; raises UserError when there is none of that id.
  InputView input(const std::string& inputId) const;
  std::vector<ButtonView> toolbar() const { return viewToolbar(host_->ui()); }
  const std::vector<MessageBox>& messageBoxes() const { return host_->ui().boxes().shown(); }
  /// Paths of what is picked in the dialog, in order.
  std::vector<std::string> picked() const;
  /// What a person can point at; see pickable.h.
  std::vector<Pickable> pickables(PickKind kind) { return pickablesOf(design(), kind); }

  /// Exceptions that left the add-in, and what is wrong with the host itself.
  const std::vector<BoundaryError>& errors() const { return host_->boundary().errors(); }
  std::vector<BoundaryError> takeErrors() { return host_->boundary().takeErrors(); }

 private:
  const Module& loadedModule() const;
  CommandObject& activeCommand() const;
  InputCore& inputOf(const std::string& inputId) const;
  SelectionInput& selectionInput() const;
  template <class Kind>
  Kind& usableInput(const std::string& inputId, const char* whatFor) const;
  void requireUsable(const InputCore& input, const char* whatFor) const;
  void changed(InputCore& input);
  void requireReachable(const InputCore& input, const std::string& action) const;
  DefinitionObject& definitionOfButton(const std::string& commandId) const;
  ListItemsObject& itemsToChoose(const std::string& inputId) const;
  void chooseIn(InputCore& input, ListItemObject& item);
  std::string editableText(const std::string& inputId) const;
  void enter(const std::string& inputId, const std::string& text);
  void tickGroup(GroupInput& group, bool isTicked);
  ProgressDialogObject& progressDialog() const;
  void stepThrough(bool (model::History::*step)(), const char* whenThereIsNone);
  void note(const std::string& action);
  void checkHost();

  std::unique_ptr<Host> host_;
  std::unique_ptr<Module> module_;
  std::filesystem::path moduleFile_;
};

}  // namespace headless
