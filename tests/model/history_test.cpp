// Steps, transactions, undo and redo over plain fields.
#include "host/model/history.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace headless::model {
namespace {

using Names = std::vector<std::string>;

struct HistoryTest : testing::Test {
  std::string colour = "grey";
  std::string material = "steel";
  History history;
};

TEST_F(HistoryTest, StartsWithNothingToTakeBack) {
  EXPECT_FALSE(history.undo());
  EXPECT_FALSE(history.redo());
  EXPECT_FALSE(history.isOpen());
  EXPECT_EQ(history.revision(), 0u);
}

TEST_F(HistoryTest, AChangeOutsideATransactionIsAStepOfItsOwn) {
  history.assign(colour, "red");
  history.assign(colour, "blue");
  EXPECT_EQ(history.undoSteps(), (Names{"Edit", "Edit"}));
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(colour, "red");
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(colour, "grey");
  EXPECT_FALSE(history.undo());
}

TEST_F(HistoryTest, ATransactionIsOneStep) {
  history.begin();
  history.assign(colour, "red");
  history.assign(material, "brass");
  history.assign(colour, "blue");
  EXPECT_TRUE(history.hasPendingChanges());
  EXPECT_TRUE(history.undoSteps().empty());
  history.commit("Apply");
  EXPECT_FALSE(history.isOpen());
  EXPECT_FALSE(history.hasPendingChanges());
  EXPECT_EQ(history.undoSteps(), Names{"Apply"});

  EXPECT_TRUE(history.undo());
  EXPECT_EQ(colour, "grey");
  EXPECT_EQ(material, "steel");
  EXPECT_EQ(history.redoSteps(), Names{"Apply"});

  EXPECT_TRUE(history.redo());
  EXPECT_EQ(colour, "blue");
  EXPECT_EQ(material, "brass");
  EXPECT_EQ(history.undoSteps(), Names{"Apply"});
  EXPECT_TRUE(history.redoSteps().empty());
}

TEST_F(HistoryTest, RollbackTakesEverythingBackAndLeavesNoStep) {
  history.assign(material, "brass");
  history.begin();
  history.assign(colour, "red");
  history.assign(colour, "blue");
  history.assign(material, "gold");
  history.rollback();
  EXPECT_EQ(colour, "grey");
  EXPECT_EQ(material, "brass");
  EXPECT_EQ(history.undoSteps(), Names{"Edit"});
  EXPECT_FALSE(history.isOpen());
}

TEST_F(HistoryTest, ATransactionWithoutChangeLeavesNoStepAndKeepsWhatCanBeRedone) {
  history.assign(colour, "red");
  history.undo();
  history.begin();
  history.assign(colour, "grey");
  EXPECT_FALSE(history.hasPendingChanges());
  history.commit("Nothing");
  history.begin();
  history.assign(colour, "blue");
  history.rollback();
  EXPECT_EQ(history.redoSteps(), Names{"Edit"});
  EXPECT_TRUE(history.redo());
  EXPECT_EQ(colour, "red");
}

TEST_F(HistoryTest, ANewStepDropsWhatCouldBeRedone) {
  history.assign(colour, "red");
  history.undo();
  history.assign(colour, "blue");
  EXPECT_TRUE(history.redoSteps().empty());
  EXPECT_FALSE(history.redo());
  EXPECT_EQ(colour, "blue");
}

TEST_F(HistoryTest, SettingTheSameValueIsNoChange) {
  history.assign(colour, "grey");
  EXPECT_TRUE(history.undoSteps().empty());
  EXPECT_EQ(history.revision(), 0u);
}

TEST_F(HistoryTest, NeitherUndoesNorRedoesDuringATransaction) {
  history.assign(colour, "red");
  history.assign(colour, "blue");
  history.undo();
  history.begin();
  EXPECT_FALSE(history.undo());
  EXPECT_FALSE(history.redo());
  EXPECT_EQ(colour, "red");
  history.rollback();
  EXPECT_TRUE(history.redo());
}

TEST_F(HistoryTest, RefusesTransactionsOutOfOrder) {
  EXPECT_THROW(history.commit("Apply"), std::logic_error);
  EXPECT_THROW(history.rollback(), std::logic_error);
  history.begin();
  EXPECT_THROW(history.begin(), std::logic_error);
  EXPECT_TRUE(history.isOpen());
}

TEST_F(HistoryTest, StepNamesStandInOrder) {
  for (const char* name : {"one", "two", "three"}) {
    history.begin();
    history.assign(colour, name);
    history.commit(name);
  }
  EXPECT_EQ(history.undoSteps(), (Names{"one", "two", "three"}));
  history.undo();
  history.undo();
  EXPECT_EQ(history.undoSteps(), Names{"one"});
  EXPECT_EQ(history.redoSteps(), (Names{"three", "two"}));
  history.redo();
  EXPECT_EQ(colour, "two");
}

TEST_F(HistoryTest, RevisionTellsThatSomethingHappened) {
  std::size_t last = history.revision();
  const auto moved = [&] { return std::exchange(last, history.revision()) != last; };
  history.begin();
  EXPECT_FALSE(moved());
  history.assign(colour, "red");
  EXPECT_TRUE(moved());
  history.rollback();
  EXPECT_TRUE(moved());
  history.assign(colour, "red");
  EXPECT_TRUE(moved());
  history.undo();
  EXPECT_TRUE(moved());
  history.redo();
  EXPECT_TRUE(moved());
  EXPECT_FALSE(moved());
}

TEST_F(HistoryTest, TellsOfEveryChangeMadeOnceItIsMade) {
  std::vector<std::string> seen;
  history.onChange = [&] { seen.push_back(colour); };
  history.assign(colour, "red");
  history.assign(colour, "red");
  history.begin();
  history.assign(colour, "blue");
  history.rollback();
  history.undo();
  history.redo();
  EXPECT_EQ(seen, (Names{"red", "blue"}));
}

TEST_F(HistoryTest, HoldsSharedValuesForAsLongAsTheyCanComeBack) {
  auto field = std::make_shared<const int>(1);
  const std::weak_ptr<const int> old = field;
  history.assign(field, nullptr);
  EXPECT_EQ(field, nullptr);
  EXPECT_FALSE(old.expired());
  history.undo();
  EXPECT_EQ(field, old.lock());
}

}  // namespace
}  // namespace headless::model
