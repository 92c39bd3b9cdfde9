#include "host/ui/events.h"

#include <stdexcept>

#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;
using headless::CommandArguments;
using headless::CommandEventObject;
using headless::makeObject;

class EventOfAHost : public HostTest {
 protected:
  void fire() {
    event->fire(host().boundary(), makeObject<CommandArguments>(event, nullptr, UnknownTerminationReason), "detail");
  }

  Ptr<CommandEventObject> event = makeObject<CommandEventObject>("execute", nullptr);
  CommandRecorder first{log, "first"};
  CommandRecorder second{log, "second"};
};

TEST_F(EventOfAHost, CallsHandlersInTheOrderOfAddition) {
  EXPECT_TRUE(event->add(&second));
  EXPECT_TRUE(event->add(&first));
  fire();
  EXPECT_EQ(log, Log({"second", "first"}));
}

TEST_F(EventOfAHost, RefusesNoHandler) {
  EXPECT_FALSE(event->add(nullptr));
  EXPECT_FALSE(event->remove(nullptr));
  EXPECT_EQ(event->handlerCount(), 0U);
}

TEST_F(EventOfAHost, CallsAHandlerOnceThatWasAddedTwice) {
  event->add(&first);
  EXPECT_TRUE(event->add(&first));
  fire();
  EXPECT_EQ(log, Log({"first"}));
  EXPECT_TRUE(event->remove(&first));
  fire();
  EXPECT_EQ(log, Log({"first"}));
}

TEST_F(EventOfAHost, RemovesOnlyWhatWasAdded) {
  event->add(&first);
  EXPECT_FALSE(event->remove(&second));
  EXPECT_TRUE(event->remove(&first));
  EXPECT_FALSE(event->remove(&first));
  fire();
  EXPECT_EQ(log, Log({}));
}

TEST_F(EventOfAHost, HasHandlersOfItsOwn) {
  const auto other = makeObject<CommandEventObject>("destroy", nullptr);
  event->add(&first);
  other->add(&first);
  other->remove(&first);
  EXPECT_EQ(event->handlerCount(), 1U);
}

TEST_F(EventOfAHost, ForgetsAHandlerThatIsDestroyed) {
  const auto other = makeObject<CommandEventObject>("destroy", nullptr);
  {
    CommandRecorder passing(log, "passing");
    event->add(&passing);
    other->add(&passing);
  }
  EXPECT_EQ(event->handlerCount() + other->handlerCount(), 0U);
  fire();
  EXPECT_EQ(log, Log({}));
}

TEST_F(EventOfAHost, MayGoBeforeItsHandlers) {
  event->add(&first);
  event = makeObject<CommandEventObject>("execute", nullptr);
  EXPECT_TRUE(event->add(&first));
}

TEST_F(EventOfAHost, DoesNotCallAHandlerThatAnEarlierOneRemoved) {
  event->add(&first);
  event->add(&second);
  first.then = [this](const auto&) { event->remove(&second); };
  fire();
  EXPECT_EQ(log, Log({"first"}));
}

TEST_F(EventOfAHost, DoesNotCallAHandlerThatAnEarlierOneDestroyed) {
  auto passing = std::make_unique<CommandRecorder>(log, "passing");
  event->add(&first);
  event->add(passing.get());
  first.then = [&](const auto&) { passing = nullptr; };
  fire();
  EXPECT_EQ(log, Log({"first"}));
}

TEST_F(EventOfAHost, CallsAHandlerThatIsAddedMeanwhileFromTheNextTimeOn) {
  event->add(&first);
  first.then = [this](const auto&) { event->add(&second); };
  fire();
  EXPECT_EQ(takeLog(), Log({"first"}));
  fire();
  EXPECT_EQ(log, Log({"first", "second"}));
}

TEST_F(EventOfAHost, GoesOnAfterAHandlerThatRaised) {
  event->add(&first);
  event->add(&second);
  first.then = [](const auto&) { throw std::runtime_error("no luck"); };
  fire();
  EXPECT_EQ(log, Log({"first", "second"}));
  EXPECT_EQ(takeErrors(), Log({"execute(detail): no luck"}));
}

TEST_F(EventOfAHost, TellsItsNameAndIsInTheArguments) {
  event->add(&first);
  Ptr<Event> firing;
  first.then = [&](const Ptr<CommandEventArgs>& arguments) { firing = arguments->firingEvent(); };
  fire();
  EXPECT_EQ(firing, event);
  EXPECT_EQ(firing->name(), "execute");
}

TEST_F(EventOfAHost, TellsWhoFiresIt) {
  const auto command = commandWithButton("Command");
  command->build = [](const Ptr<Command>& made) { made->isAutoExecute(false); };
  session().press("Command");
  EXPECT_EQ(command->command->execute()->sender(), Ptr<Base>(command->command));
  EXPECT_EQ(command->command->inputChanged()->sender(), Ptr<Base>(command->command));
  EXPECT_EQ(command->definition->commandCreated()->sender(), Ptr<Base>(command->definition));
  EXPECT_EQ(ui()->commandTerminated()->sender(), Ptr<Base>(ui()));
}

TEST_F(EventOfAHost, IsNotedInTheTraceWithWhatItIsAbout) {
  host().gate().startTrace();
  fire();
  EXPECT_EQ(host().gate().traceText(), "# event execute(detail)\n");
}

}  // namespace
}  // namespace tests
