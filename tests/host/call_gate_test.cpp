#include "host/runtime/call_gate.h"

#include "host/ui/list_items.h"
#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;
using headless::CallGate;
using headless::Fault;
using headless::FaultAnswer;

class Gate : public HostTest {
 protected:
  CallGate& gate() { return host().gate(); }
  std::size_t countOf(const std::string& call) {
    const auto counts = gate().countsByName();
    const auto found = counts.find(call);
    return found == counts.end() ? 0 : found->second;
  }

  Ptr<CommandDefinitions> definitions = ui()->commandDefinitions();
  Ptr<CommandDefinition> definition = definitions->addButtonDefinition("id", "Name", "Tip");
};

TEST_F(Gate, CountsCallsByNameAndInAll) {
  gate().resetCounts();
  definition->name();
  definition->name();
  definition->name("Other");
  definitions->count();
  EXPECT_EQ(gate().callCount(), 4U);
  const std::map<std::string, std::size_t> expected{
      {"CommandDefinition.name", 2}, {"CommandDefinition.name=", 1}, {"CommandDefinitions.count", 1}};
  EXPECT_EQ(gate().countsByName(), expected);
  gate().resetCounts();
  EXPECT_EQ(gate().callCount(), 0U);
  EXPECT_TRUE(gate().countsByName().empty());
}

TEST_F(Gate, IsPassedByTheCallsOfTheBaseClassToo) {
  gate().resetCounts();
  static_cast<void>(definition->isValid());
  static_cast<void>(definition->objectType());
  EXPECT_EQ(countOf("CommandDefinition.isValid"), 1U);
  EXPECT_EQ(countOf("CommandDefinition.objectType"), 1U);
  EXPECT_EQ(gate().callCount(), 2U);
}

TEST_F(Gate, IsNotPassedByCopiesAndConversions) {
  gate().resetCounts();
  const Ptr<Base> base = definition;
  EXPECT_TRUE(Ptr<CommandDefinition>(base) == definition);
  EXPECT_FALSE(definition->cast<Command>());
  EXPECT_EQ(gate().callCount(), 0U);
}

TEST_F(Gate, RecordsReadableLines) {
  gate().startTrace();
  definitions->itemById("id");
  definitions->itemById("other");
  definition->name("Other");
  definitions->count();
  gate().note("the end");
  EXPECT_EQ(gate().traceText(),
            "CommandDefinitions.itemById(\"id\") -> CommandDefinition(id)\n"
            "CommandDefinitions.itemById(\"other\") -> none\n"
            "CommandDefinition(id).name=(\"Other\") -> true\n"
            "CommandDefinitions.count() -> 2\n"
            "# the end\n");
}

TEST_F(Gate, RecordsArgumentsOfEveryKind) {
  panel();
  CreatedRecorder handler(log, "created");
  gate().startTrace();
  panel()->controls()->addCommand(definition, "x", false);
  definition->commandCreated()->add(&handler);
  ui()->messageBox("Text", "Title", YesNoButtonType, QuestionIconType);
  EXPECT_THAT(gate().traceText(), testing::HasSubstr("ToolbarControls(Panel).addCommand(CommandDefinition(id), \"x\", "
                                                     "false) -> CommandControl(id)\n"));
  EXPECT_THAT(gate().traceText(), testing::HasSubstr("CommandCreatedEvent(commandCreated).add(handler) -> true\n"));
  EXPECT_THAT(gate().traceText(), testing::HasSubstr("UserInterface.messageBox(\"Text\", \"Title\", 3, 1) -> -1\n"));
}

TEST_F(Gate, RecordsListsAndNumbers) {
  const auto command = commandWithButton("Dialog");
  command->build = [](const Ptr<Command>& made) { made->commandInputs()->addSelectionInput("selection", "", ""); };
  session().press("Dialog");
  const Ptr<SelectionCommandInput> input = command->command->commandInputs()->itemById("selection");
  gate().startTrace();
  input->selectionFilters({"Bodies", "Faces"});
  input->selectionFilters();
  EXPECT_EQ(gate().traceText(),
            "SelectionCommandInput(selection).selectionFilters=([\"Bodies\", \"Faces\"]) -> true\n"
            "SelectionCommandInput(selection).selectionFilters() -> [\"Bodies\", \"Faces\"]\n");
}

TEST_F(Gate, IndentsWhatACallCauses) {
  const auto command = commandWithButton("Plain");
  gate().startTrace();
  command->definition->execute();
  EXPECT_THAT(gate().traceText(), testing::HasSubstr("CommandDefinition(Plain).execute() -> true\n"
                                                     "  # event commandStarting(Plain)\n"
                                                     "  # event commandCreated(Plain)\n"
                                                     "  CommandCreatedEventArgs.command() -> Command(Plain)\n"));
}

TEST_F(Gate, RecordsOnlyBetweenStartAndStop) {
  definition->name();
  gate().startTrace();
  EXPECT_TRUE(gate().isTracing());
  definition->id();
  gate().stopTrace();
  definition->name();
  gate().note("not this");
  EXPECT_EQ(gate().traceText(), "CommandDefinition(id).id() -> \"id\"\n");
  gate().startTrace();
  EXPECT_EQ(gate().traceText(), "");
}

TEST_F(Gate, MakesTheNthCallFailOnce) {
  gate().setFault({2});
  EXPECT_EQ(definition->name(), "Name");
  EXPECT_FALSE(gate().faultStruck());
  EXPECT_EQ(definition->name(), "");
  EXPECT_TRUE(gate().faultStruck());
  EXPECT_EQ(definition->name(), "Name");
}

TEST_F(Gate, MakesAsManyCallsFailAsItIsTold) {
  gate().setFault({2, FaultAnswer::Nothing, "", 2});
  EXPECT_EQ(definition->name(), "Name");
  EXPECT_EQ(definition->name() + definition->id(), "");
  EXPECT_EQ(definition->name(), "Name");
}

TEST_F(Gate, MakesTheNthCallOfANameFail) {
  gate().setFault({2, FaultAnswer::Nothing, "CommandDefinition.name="});
  EXPECT_TRUE(definition->name("a"));
  EXPECT_EQ(definition->name(), "a");
  EXPECT_FALSE(definition->name("b"));
  EXPECT_EQ(definition->name(), "a") << "what failed had no effect";
  EXPECT_TRUE(definition->name("c"));
}

TEST_F(Gate, ForgetsAFaultThatIsTakenBackOrReplaced) {
  gate().setFault({1});
  gate().clearFault();
  EXPECT_EQ(definition->name(), "Name");
  gate().setFault({1, FaultAnswer::Nothing, "Command.doExecute"});
  gate().setFault({1, FaultAnswer::Nothing, "CommandDefinition.name"});
  EXPECT_EQ(definition->name(), "");
}

TEST_F(Gate, AnswersWithNothingOfTheTypeThatIsAskedFor) {
  const auto failing = [this](auto&& call) {
    gate().setFault({1});
    return call();
  };
  EXPECT_FALSE(failing([&] { return definitions->itemById("id"); }));
  EXPECT_EQ(failing([&] { return definitions->count(); }), 0U);
  EXPECT_EQ(failing([&] { return definition->name(); }), "");
  EXPECT_FALSE(failing([&] { return definition->isValid(); }));
  EXPECT_STREQ(failing([&] { return definition->objectType(); }), "");
  const auto interface = ui();
  EXPECT_EQ(failing([&] { return interface->messageBox("x"); }), DialogError);
}

TEST_F(Gate, RaisesWhenTheFaultIsAnException) {
  gate().setFault({1, FaultAnswer::Exception, "CommandDefinition.name"});
  gate().startTrace();
  try {
    definition->name();
    FAIL() << "nothing was raised";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "CommandDefinition.name was made to fail");
  }
  definition->id();
  EXPECT_EQ(gate().traceText(),
            "CommandDefinition(id).name() -> an exception\n"
            "CommandDefinition(id).id() -> \"id\"\n");
}

TEST_F(Gate, TellsInTheTraceThatACallWasMadeToFail) {
  gate().setFault({1});
  gate().startTrace();
  definition->name();
  EXPECT_EQ(gate().traceText(), "CommandDefinition(id).name() -> nothing, as the call was made to fail\n");
}

TEST_F(Gate, NamesTheGuiltySideWhenADeletedObjectIsUsed) {
  const auto gone = panel();
  gone->deleteMe();
  EXPECT_TRUE(gate().misuses().empty());
  gate().startTrace();
  EXPECT_EQ(gone->name(), "");
  ASSERT_EQ(gate().misuses().size(), 1U);
  EXPECT_EQ(gate().misuses().front().call, "ToolbarPanel.name");
  EXPECT_EQ(gate().misuses().front().reason, "the add-in used ToolbarPanel(Panel) after it was deleted");
  EXPECT_EQ(gate().traceText(), "ToolbarPanel(Panel).name() -> nothing, as the object was deleted\n");
}

TEST_F(Gate, TakesAQuestionForValidityForNoMisuse) {
  const auto gone = panel();
  gone->deleteMe();
  EXPECT_FALSE(gone->isValid());
  EXPECT_STREQ(gone->objectType(), "adsk::core::ToolbarPanel");
  EXPECT_TRUE(gate().misuses().empty());
}

TEST_F(Gate, IsTheNewestOneThatLives) {
  EXPECT_EQ(CallGate::active(), &gate());
  {
    CallGate newer;
    EXPECT_EQ(CallGate::active(), &newer);
    definition->name();
    EXPECT_EQ(newer.callCount(), 1U);
  }
  EXPECT_EQ(CallGate::active(), &gate());
  end();
  EXPECT_EQ(CallGate::active(), nullptr);
}

TEST_F(Gate, IsNotNeededByObjectsThatOutliveIt) {
  const auto values = NamedValues::create();
  end();
  EXPECT_TRUE(values->isValid());
  EXPECT_EQ(definition->name(), "");
}

}  // namespace
}  // namespace tests
