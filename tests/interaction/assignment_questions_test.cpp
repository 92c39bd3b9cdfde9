// Assigning an appearance: which entities get it, what is asked when something below carries a look of its own, and
// what the answers do.
#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using adsk::core::DialogError;
using adsk::core::DialogNo;
using adsk::core::DialogResults;
using adsk::core::DialogYes;
using headless::MessageBox;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* aboutFaces = "Remove appearances applied to faces?";
constexpr const char* aboutBodiesAndFaces = "Remove appearances applied to bodies & faces?";
constexpr const char* rootNotice =
    "The root component has been selected. Fusion 360 does not support reading the appearance of the root component "
    "using the API.";

void expectQuestion(const MessageBox& box, const char* text) {
  EXPECT_EQ(box.text, text);
  EXPECT_EQ(box.title, "Tintora");
  EXPECT_EQ(static_cast<int>(box.buttons), 3);
  EXPECT_EQ(static_cast<int>(box.icon), 1);
}

/// Looks are given to the design before paint() opens the dialog.
class AppearanceAssignment : public AddInTest {
 protected:
  /// Picks these and assigns the red appearance alone. Returns the edits.
  Lines paint(const std::string& filter, const std::vector<std::string>& paths) {
    openForAppearance();
    pickAll(session(), filter, paths);
    return apply();
  }

  Lines paint(headless::model::Component& component) {
    openForAppearance();
    pickComponent(session(), component);
    return apply();
  }

  void openForAppearance() {
    openDialog();
    session().choose("idAppearanceList", red);
    assignAppearancesOnly(session());
  }

  Lines apply() {
    trace = traceOf(session(), [&] { session().click("idBtnApply"); });
    return editsIn(trace);
  }

  headless::model::Face& face(const std::string& component, const std::string& bodyName, std::size_t index) {
    return *body(component, bodyName).faces[index];
  }

  /// How often that was called while Apply assigned.
  std::size_t callsTo(const std::string& member) { return containing(member, reactionTo("idBtnApply", trace)).size(); }

  Lines trace;
};

TEST_F(AppearanceAssignment, OfAFaceIsDoneWithoutAQuestion) {
  start();
  face("Machine", "Base", 1).appearance = look("Old paint");
  EXPECT_THAT(paint("Face", {"Base/Face2"}), ElementsAre(lookSet("BRepFace(Base)", red)));
  EXPECT_EQ(ownLook(face("Machine", "Base", 0)), "");
  EXPECT_EQ(ownLook(face("Machine", "Base", 1)), red);
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_F(AppearanceAssignment, OfABodyWithoutPaintedFacesIsDoneWithoutAQuestion) {
  start();
  body("Machine", "Base").appearance = look("Old paint");
  EXPECT_THAT(paint("Body", {"Base"}), ElementsAre(lookSet("BRepBody(Base)", red)));
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_F(AppearanceAssignment, OfABodyWithAPaintedFaceAsksAboutFaces) {
  start();
  face("Machine", "Base", 1).appearance = look("Face paint");
  session().answerNext(DialogNo);
  paint("Body", {"Base"});
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  expectQuestion(session().messageBoxes().front(), aboutFaces);
}

TEST_F(AppearanceAssignment, OfABodyClearsAllItsFacesOnYes) {
  start();
  face("Machine", "Base", 1).appearance = look("Face paint");
  session().answerNext(DialogYes);
  EXPECT_THAT(paint("Body", {"Base"}), ElementsAre(lookCleared("BRepFace(Base)"), lookCleared("BRepFace(Base)"),
                                                   lookSet("BRepBody(Base)", red)));
  EXPECT_EQ(ownLook(face("Machine", "Base", 1)), "");
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
}

/// Any answer but yes; an error stands for a box that nobody answered.
class AnyOtherAnswer : public AppearanceAssignment, public WithRow<DialogResults> {};

TABLE(Answers, AnyOtherAnswer, [](const auto& row) { return row == DialogNo ? "No" : "Error"; },
      {DialogNo, DialogError});

TABLE_TEST(AnyOtherAnswer, PaintsTheBodyAndLeavesItsFaces) {
  start();
  face("Machine", "Base", 1).appearance = look("Face paint");
  session().answerNext(row());
  EXPECT_THAT(paint("Body", {"Base"}), ElementsAre(lookSet("BRepBody(Base)", red)));
  EXPECT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(ownLook(face("Machine", "Base", 1)), "Face paint");
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
}

TABLE_TEST(AnyOtherAnswer, PaintsTheOccurrenceAndLeavesWhatIsBelow) {
  start();
  face("Bolt", "Head", 0).appearance = look("Face paint");
  body("Bolt", "Shank").appearance = look("Body paint");
  session().answerNext(row());
  EXPECT_THAT(paint("Component", {"Bolt:2"}), ElementsAre(lookSet("Occurrence(Bolt:2)", red)));
  EXPECT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(ownLook(face("Bolt", "Head", 0)), "Face paint");
  EXPECT_EQ(ownLook(body("Bolt", "Shank")), "Body paint");
}

struct PaintedFace {
  std::size_t index;
  std::size_t facesAsked;
};

class FaceOverrideTest : public AppearanceAssignment, public WithRow<PaintedFace> {};

TABLE(Faces, FaceOverrideTest, [](const auto& row) { return "Face" + std::to_string(row.index + 1); },
      {{0, 1}, {1, 2}, {2, 3}});

TABLE_TEST(FaceOverrideTest, StopsAtTheFirstPaintedFace) {
  start();
  face("Plate", "Plate1", row().index).appearance = look("Face paint");
  session().answerNext(DialogNo);
  paint("Body", {"Frame:1+Plate:1/Plate1"});
  EXPECT_EQ(callsTo("appearanceSourceType()"), row().facesAsked);
}

TEST_F(AppearanceAssignment, AsksForEachBodyByItself) {
  start();
  face("Machine", "Base", 0).appearance = look("Face paint");
  face("Bolt", "Head", 0).appearance = look("Face paint");
  session().answerNext(DialogYes);
  session().answerNext(DialogNo);
  paint("Body", {"Base", "Bolt:2/Shank", "Bolt:2/Head"});
  EXPECT_EQ(session().messageBoxes().size(), 2U);
  EXPECT_EQ(ownLook(face("Machine", "Base", 0)), "");
  EXPECT_EQ(ownLook(face("Bolt", "Head", 0)), "Face paint");
  for (const auto* painted : {&body("Machine", "Base"), &body("Bolt", "Shank"), &body("Bolt", "Head")}) {
    EXPECT_EQ(ownLook(*painted), red) << painted->name;
  }
}

TEST_F(AppearanceAssignment, AsksOnceForABodySeenTwiceWhenTheFirstAnswerClearsIt) {
  start();
  face("Plate", "Plate1", 0).appearance = look("Face paint");
  session().answerNext(DialogYes);
  paint("Body", {"Frame:1+Plate:1/Plate1", "Frame:2+Plate:1/Plate1"});
  EXPECT_EQ(session().messageBoxes().size(), 1U);
}

// Occurrences.

TEST_F(AppearanceAssignment, OfAnOccurrenceWithNothingPaintedBelowIsDoneWithoutAQuestion) {
  start();
  EXPECT_THAT(paint("Component", {"Frame:1"}), ElementsAre(lookSet("Occurrence(Frame:1)", red)));
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_F(AppearanceAssignment, OfAnOccurrenceDoesNotAskAboutPaintedOccurrences) {
  start();
  occurrence("Frame:1").appearance = look("Frame paint");
  occurrence("Frame:1+Bolt:1").appearance = look("Bolt paint");
  paint("Component", {"Frame:1"});
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_EQ(ownLook(occurrence("Frame:1+Bolt:1")), "Bolt paint");
}

/// What is painted somewhere below the picked occurrence "Link1:1".
struct Below {
  const char* component;
  bool isFace;
};

class PaintedBelow : public AppearanceAssignment, public WithRow<Below> {
 protected:
  void SetUp() override {
    start(chainDesign(3));
    headless::model::Body& painted = body(row().component, "Body1");
    (row().isFace ? painted.faces[0]->appearance : painted.appearance) = look("Paint");
  }
};

TABLE(Objects, PaintedBelow,
      [](const auto& row) { return std::string(row.isFace ? "FaceOf" : "BodyOf") + row.component; },
      {{"Link1", false}, {"Link1", true}, {"Link2", false}, {"Link2", true}, {"Link3", false}, {"Link3", true}});

TABLE_TEST(PaintedBelow, IsFoundAtAnyDepth) {
  session().answerNext(DialogNo);
  paint("Component", {"Link1:1"});
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  expectQuestion(session().messageBoxes().front(), aboutBodiesAndFaces);
}

TABLE_TEST(PaintedBelow, EndsTheSearch) {
  session().answerNext(DialogNo);
  paint("Component", {"Link1:1"});
  const Lines asked = containing("appearanceSourceType()", reactionTo("idBtnApply", trace));
  EXPECT_THAT(asked.back(), HasSubstr(row().isFace ? "-> 3" : "-> 1"));
  EXPECT_THAT(asked.back(), HasSubstr(std::string(row().component) + ":1+Body1"));
  EXPECT_EQ(containing("-> 0", asked).size(), asked.size() - 1);
}

TABLE_TEST(PaintedBelow, IsClearedDeepestFirstOnYesAndTheOccurrenceLast) {
  session().answerNext(DialogYes);
  const std::string inner = "Link1:1+Link2:1+Link3:1";
  const std::string middle = "Link1:1+Link2:1";
  EXPECT_THAT(paint("Component", {"Link1:1"}),
              ElementsAre(lookCleared("BRepBody(" + inner + "+Body1)"), lookCleared("BRepFace(" + inner + "+Body1)"),
                          lookCleared("Occurrence(" + inner + ")"), lookCleared("BRepBody(" + middle + "+Body1)"),
                          lookCleared("BRepFace(" + middle + "+Body1)"), lookCleared("Occurrence(" + middle + ")"),
                          lookCleared("BRepBody(Link1:1+Body1)"), lookCleared("BRepFace(Link1:1+Body1)"),
                          lookCleared("Occurrence(Link1:1)"), lookSet("Occurrence(Link1:1)", red)));
  EXPECT_EQ(ownLook(body(row().component, "Body1")), "");
  EXPECT_EQ(ownLook(*body(row().component, "Body1").faces[0]), "");
}

TEST_F(AppearanceAssignment, OfAnOccurrenceClearsBodiesAndFacesInTheirOrderOnYes) {
  start();
  face("Bolt", "Head", 0).appearance = look("Face paint");
  session().answerNext(DialogYes);
  const std::string shank = "(Bolt:2+Shank)";
  const std::string head = "(Bolt:2+Head)";
  EXPECT_THAT(
      paint("Component", {"Bolt:2"}),
      ElementsAre(lookCleared("BRepBody" + shank), lookCleared("BRepFace" + shank), lookCleared("BRepFace" + shank),
                  lookCleared("BRepBody" + head), lookCleared("BRepFace" + head), lookCleared("Occurrence(Bolt:2)"),
                  lookSet("Occurrence(Bolt:2)", red)));
}

TEST_F(AppearanceAssignment, AsksForEachOccurrenceByItself) {
  start();
  body("Plate", "Plate1").appearance = look("Body paint");
  body("Bolt", "Head").appearance = look("Body paint");
  session().answerAlways(DialogNo);
  paint("Component", {"Frame:1", "Bolt:2"});
  EXPECT_EQ(session().messageBoxes().size(), 2U);
}

// Components.

TEST_F(AppearanceAssignment, OfTheRootComponentExplainsWhyNothingHappens) {
  start();
  body("Plate", "Plate1").appearance = look("Body paint");
  EXPECT_THAT(paint(design().root()), IsEmpty());
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  const MessageBox& notice = session().messageBoxes().front();
  EXPECT_EQ(notice.text, rootNotice);
  EXPECT_EQ(notice.title, "Tintora");
  EXPECT_EQ(static_cast<int>(notice.buttons), 0);
  EXPECT_EQ(static_cast<int>(notice.icon), 2);
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

TEST_F(AppearanceAssignment, OfTheRootComponentExplainsItEveryTime) {
  start();
  openForAppearance();
  pickComponent(session(), design().root());
  apply();
  raiseChangeOf(session(), applyButton);
  EXPECT_EQ(session().messageBoxes().size(), 2U);
}

TEST_F(AppearanceAssignment, OfAnotherComponentDoesNothingAtAll) {
  start();
  body("Bolt", "Head").appearance = look("Body paint");
  EXPECT_THAT(paint(componentNamed(design(), "Bolt")), IsEmpty());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_F(AppearanceAssignment, KnowsTheRootComponentWhereEveryHandleIsNew) {
  headless::Profile profile;
  profile.freshWrappers = true;
  start(profile);
  openForAppearance();
  pickComponent(session(), componentNamed(design(), "Bolt"));
  EXPECT_THAT(apply(), IsEmpty());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  pickComponent(session(), design().root());
  EXPECT_THAT(apply(), IsEmpty());
  EXPECT_EQ(session().messageBoxes().size(), 1U);
}

TEST_F(AppearanceAssignment, TakesAComponentNamedLikeTheRootForTheRoot) {
  auto design = machine();
  headless::model::Component& namesake = design->addComponent("Namesake");
  namesake.name = design->root().name;
  design->root().addInstance(namesake);
  start(std::move(design));
  openForAppearance();
  pickComponent(session(), namesake);
  EXPECT_THAT(apply(), IsEmpty());
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(session().messageBoxes().front().text, rootNotice);
}

TEST_F(AppearanceAssignment, GoesOnAfterTheNoticeAboutTheRootComponent) {
  start();
  openForAppearance();
  pickComponent(session(), design().root());
  session().pick("Base");
  EXPECT_THAT(apply(), ElementsAre(lookSet("BRepBody(Base)", red)));
  EXPECT_EQ(session().messageBoxes().size(), 1U);
}

class QuestionsUnderProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(QuestionsUnderProfile);

TABLE_TEST(QuestionsUnderProfile, YesPaintsTheWholeOccurrence) {
  start(profile());
  occurrence("Frame:1+Bolt:1").appearance = look("Bolt paint");
  body("Bolt", "Shank").appearance = look("Body paint");
  body("Bolt", "Head").faces[0]->appearance = look("Face paint");
  openDialog();
  session().choose("idAppearanceList", red);
  assignAppearancesOnly(session());
  pickAll(session(), "Component", {"Frame:1"});
  session().answerNext(DialogYes);
  session().click("idBtnApply");
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(ownLook(occurrence("Frame:1")), red);
  EXPECT_EQ(ownLook(occurrence("Frame:1+Bolt:1")), "");
  EXPECT_EQ(ownLook(body("Bolt", "Shank")), "");
  EXPECT_EQ(ownLook(*body("Bolt", "Head").faces[0]), "");
  EXPECT_EQ(history().undoSteps().size(), 1U);
  session().undo();
  EXPECT_EQ(ownLook(occurrence("Frame:1+Bolt:1")), "Bolt paint");
  EXPECT_EQ(ownLook(*body("Bolt", "Head").faces[0]), "Face paint");
}

TABLE_TEST(QuestionsUnderProfile, NoKeepsThePaintedFaces) {
  start(profile());
  body("Machine", "Base").faces[0]->appearance = look("Face paint");
  openDialog();
  session().choose("idAppearanceList", red);
  assignAppearancesOnly(session());
  session().pick("Base");
  session().answerNext(DialogNo);
  session().click("idBtnApply");
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
  EXPECT_EQ(ownLook(*body("Machine", "Base").faces[0]), "Face paint");
}

TABLE_TEST(QuestionsUnderProfile, TheRootComponentIsExplainedAndLeftAsItIs) {
  startDialog(profile());
  assignAppearancesOnly(session());
  pickComponent(session(), design().root());
  session().click("idBtnApply");
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(session().messageBoxes().front().text, rootNotice);
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

}  // namespace
}  // namespace tests
