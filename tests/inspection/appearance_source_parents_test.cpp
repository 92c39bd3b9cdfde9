// The search for the look that an occurrence inherits: up its path, by name, nearest parent first.
#include "tests/inspection/inspection_fixture.h"
#include "tests/inspection/nested_design.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::model::Component;
using headless::model::Design;

constexpr const char* byMaterialText = "Selected componet has appearance by assigned material.";

struct PathCase {
  const char* name;
  std::vector<std::string> painted;  // full paths; each is painted in the colour of its last letter
  const char* picked;
  const char* text;
};

const std::vector<PathCase> pathCases = {
    {"NothingPainted", {}, "A:1+B:1+C:1", byMaterialText},
    {"TopLevelNothingPainted", {}, "A:1", byMaterialText},
    {"OwnLook", {"A:1+B:1+C:1"}, "A:1+B:1+C:1", "<b>C</b> - overriden appearance."},
    {"OwnLookAtTheTop", {"A:1"}, "A:1", "<b>A</b> - overriden appearance."},
    {"OwnLookBeforeParents", {"A:1", "A:1+B:1"}, "A:1+B:1", "<b>B</b> - overriden appearance."},
    {"DirectParent", {"A:1+B:1"}, "A:1+B:1+C:1", "<b>B</b> - appearance by some parent occurence"},
    {"Grandparent", {"A:1"}, "A:1+B:1+C:1", "<b>A</b> - appearance by some parent occurence"},
    {"TopOfFourLevels", {"A:1"}, "A:1+B:1+C:1+D:1", "<b>A</b> - appearance by some parent occurence"},
    {"SecondOfFourLevels", {"A:1+B:1"}, "A:1+B:1+C:1+D:1", "<b>B</b> - appearance by some parent occurence"},
    {"NearestParentWins", {"A:1", "A:1+B:1"}, "A:1+B:1+C:1", "<b>B</b> - appearance by some parent occurence"},
    {"NearestOfThree",
     {"A:1", "A:1+B:1", "A:1+B:1+C:1"},
     "A:1+B:1+C:1+D:1",
     "<b>C</b> - appearance by some parent occurence"},
    {"ChildrenDoNotCount", {"A:1+B:1+C:1"}, "A:1+B:1", byMaterialText},
};

class AppearanceOnPath : public InspectionTest, public WithRow<PathCase> {};

TABLE(Paths, AppearanceOnPath, byName, pathCases);

TABLE_TEST(AppearanceOnPath, IsFoundUpwards) {
  start(nestedDesign());
  for (const std::string& path : row().painted) {
    occurrence(path).appearance = look(path.substr(path.size() - 3, 1));
  }
  openDialog();
  pickOnly("Component");
  session().pick(row().picked);
  EXPECT_EQ(appearanceText(), row().text);
}

class ParentAppearance : public InspectionTest {};

TEST_F(ParentAppearance, SearchAsksParentsFromTheNearestUpAndStopsAtTheFirstHit) {
  start(nestedDesign());
  occurrence("A:1+B:1").appearance = look("B");
  openDialog();
  pickOnly("Component");
  host().gate().startTrace();
  session().pick("A:1+B:1+C:1+D:1");
  const std::string trace = host().gate().traceText();
  const auto position = [&](const char* name) { return trace.find(std::string("itemByName(\"") + name + "\")"); };
  EXPECT_LT(position("C:1"), position("B:1"));
  EXPECT_EQ(position("A:1"), std::string::npos);
  EXPECT_EQ(position("D:1"), std::string::npos);
}

TEST_F(ParentAppearance, TopLevelOccurrenceSearchesNothing) {
  start(nestedDesign());
  openDialog();
  pickOnly("Component");
  startCounting();
  session().pick("A:1");
  EXPECT_EQ(appearanceText(), byMaterialText);
  EXPECT_EQ(callsOf("Application.activeProduct"), 0U);
  EXPECT_EQ(callsOf("OccurrenceList.itemByName"), 0U);
}

/// Frame:1 and Frame:2 hold a Sub:1 each, in which lies Pin:1: parents are told apart by their names only.
std::unique_ptr<Design> sameNamesDesign() {
  auto design = std::make_unique<Design>("SameNames");
  Component& pin = design->addComponent("Pin");
  Component& sub = design->addComponent("Sub");
  Component& frame = design->addComponent("Frame");
  pin.addBody("Body1").addFace();
  sub.addInstance(pin);
  frame.addInstance(sub);
  design->root().addInstance(frame);
  design->root().addInstance(frame);
  return design;
}

TEST_F(ParentAppearance, ParentOfASeveralTimesUsedNameIsTheFirstOfThatName) {
  start(sameNamesDesign());
  occurrence("Frame:1+Sub:1").appearance = look("Blue");
  openDialog();
  pickOnly("Component");
  session().pick("Frame:2+Sub:1+Pin:1");
  EXPECT_EQ(appearanceText(), "<b>Blue</b> - appearance by some parent occurence");
}

TEST_F(ParentAppearance, LookOfALaterParentOfThatNameIsNotFound) {
  start(sameNamesDesign());
  occurrence("Frame:2+Sub:1").appearance = look("Blue");
  openDialog();
  pickOnly("Component");
  session().pick("Frame:2+Sub:1+Pin:1");
  EXPECT_EQ(appearanceText(), byMaterialText);
}

TEST_F(ParentAppearance, SearchNeedsAnActiveDesign) {
  start(nestedDesign());
  occurrence("A:1").appearance = look("A");
  openDialog();
  pickOnly("Component");
  host().state().isOtherProductActive = true;
  session().pick("A:1+B:1");
  EXPECT_EQ(appearanceText(), byMaterialText);
}

class ParentAppearanceWithout : public InspectionTest, public WithRow<const char*> {};

TABLE(Host, ParentAppearanceWithout,
      [](const auto& row) { return std::string(row) == "Design.rootComponent" ? "RootComponent" : "ActiveProduct"; },
      {"Application.activeProduct", "Design.rootComponent"});

TABLE_TEST(ParentAppearanceWithout, SearchEndsQuietly) {
  start(nestedDesign());
  occurrence("A:1").appearance = look("A");
  openDialog();
  pickOnly("Component");
  answerNothingAt(row());
  session().pick("A:1+B:1");
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(appearanceText(), byMaterialText);
}

}  // namespace
}  // namespace tests
