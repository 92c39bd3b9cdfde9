// A module that shows a dialog, attaches handlers and leaves it to their destructors to detach them.
#include <Core/CoreAll.h>

namespace {

using namespace adsk::core;

class CreatedHandler final : public CommandCreatedEventHandler {
  void notify(const Ptr<CommandCreatedEventArgs>& arguments) override {
    arguments->command()->commandInputs()->addStringValueInput("line", "");
  }
};

class TerminatedHandler final : public ApplicationCommandEventHandler {
  void notify(const Ptr<ApplicationCommandEventArgs>& arguments) override {
    // Comes back for ever, as careless add-ins do.
    arguments->commandDefinition()->execute();
  }
};

CreatedHandler createdHandler;
TerminatedHandler terminatedHandler;

}  // namespace

extern "C" XI_EXPORT bool run(const char*) {
  const auto ui = Application::get()->userInterface();
  const auto definition = ui->commandDefinitions()->addButtonDefinition("Attaching", "Attaching", "");
  definition->commandCreated()->add(&createdHandler);
  ui->commandTerminated()->add(&terminatedHandler);
  return definition->execute();
}

extern "C" XI_EXPORT bool stop(const char*) {
  return false;
}
