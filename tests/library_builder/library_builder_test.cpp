// What the library builder makes, shows and says, and what becomes of it when the user cancels or runs it again.
#include <algorithm>
#include <set>

#include "dialog/libraries.h"
#include "tests/library_builder/builder_fixture.h"
#include "tests/robustness/module_exports.h"
#include "tests/support/designs.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::ProgressView;
using headless::model::Surface;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class LibraryBuilder : public LibraryBuilderTest {};

TEST_F(LibraryBuilder, MakesEveryColourOfTheTableInANewDesign) {
  ASSERT_THAT(ralTable(), SizeIs(216));
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
  EXPECT_EQ(host().document()->name, "RAL_COLORS");
  EXPECT_FALSE(host().document()->isSaved);
}

TEST_F(LibraryBuilder, MakesPlainOpaqueSurfacesOfOneGloss) {
  EXPECT_TRUE(build());
  std::set<std::string> ids;
  for (const auto& appearance : session().design().appearances) {
    EXPECT_EQ(appearance->surface, Surface::Opaque);
    EXPECT_EQ(appearance->roughness, 0.3);
    EXPECT_FALSE(appearance->hasTexture);
    EXPECT_EQ(appearance->colour.opacity, 255);
    EXPECT_TRUE(ids.insert(appearance->id).second) << appearance->id;
  }
}

TEST_F(LibraryBuilder, LeavesAnOpenDesignAlone) {
  session().openDesign(machine());
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
  EXPECT_THAT(session().messageBoxes(), SizeIs(1));
  session().closeDocument();
  EXPECT_EQ(session().design().name, "Machine");
  EXPECT_THAT(appearances(), IsEmpty());
  EXPECT_THAT(host().document()->history.undoSteps(), IsEmpty());
}

TEST_F(LibraryBuilder, ShowsEachStep) {
  std::vector<ProgressView> seen;
  session().whileBusy([&] { seen.push_back(session().progress()); });
  EXPECT_TRUE(build());
  ASSERT_THAT(seen, SizeIs(216));
  for (std::size_t i = 0; i < seen.size(); ++i) {
    EXPECT_EQ(seen[i].value, static_cast<int>(i) + 1);
  }
  EXPECT_EQ(seen[0].title, "Tintora library builder");
  EXPECT_EQ(seen[41].message, "Making RAL appearances: 42 of 216");
  EXPECT_EQ(seen[0].minimum, 0);
  EXPECT_EQ(seen[0].maximum, 216);
  EXPECT_TRUE(seen[0].hasCancelButton);
  EXPECT_FALSE(session().isProgressShown());
}

TEST_F(LibraryBuilder, SaysHowTheAppearancesBecomeALibrary) {
  EXPECT_TRUE(build());
  EXPECT_THAT(session().messageBoxes(), SizeIs(1));
  const headless::MessageBox box = lastMessage();
  EXPECT_EQ(box.title, "Tintora library builder");
  EXPECT_EQ(box.icon, adsk::core::InformationIconType);
  EXPECT_EQ(box.buttons, adsk::core::OKButtonType);
  EXPECT_THAT(box.text, AllOf(HasSubstr("216 of 216"), HasSubstr("216 made now, 0 there before"),
                              HasSubstr("user library in the material browser and name it exactly RAL_COLORS"),
                              Not(HasSubstr("gloss"))));
}

TEST_F(LibraryBuilder, NamesThePlaceWhereTheAddInLooks) {
  EXPECT_TRUE(build());
  std::string folder = tintora::libraryFolder(tintora::appearanceLibraries);
  std::replace(folder.begin(), folder.end(), '/', '\\');
  EXPECT_THAT(lastMessage().text,
              AllOf(HasSubstr("a file RAL_COLORS.adsklib"), HasSubstr("the add-in's folder " + folder + "."),
                    HasSubstr("in which Tintora.dll lies"), HasSubstr("\\API\\AddIns\\Tintora or"),
                    HasSubstr("\\ApplicationPlugins\\Tintora.bundle\\Contents.")));
}

TEST_F(LibraryBuilder, KeepsWhatExistsWhenItIsCancelled) {
  EXPECT_TRUE(buildAndCancelAfter(100));
  EXPECT_EQ(appearances(), firstRows(100));
  EXPECT_FALSE(session().isProgressShown());
  EXPECT_THAT(messages(), ElementsAre(AllOf(HasSubstr("Cancelled. 100 of 216"), HasSubstr("100 made now"),
                                            HasSubstr("They stay."), HasSubstr("run the library builder again"))));
}

TEST_F(LibraryBuilder, IsDoneWhenCancelComesAfterTheLastOne) {
  EXPECT_TRUE(buildAndCancelAfter(216));
  EXPECT_EQ(appearances(), ralTable());
  EXPECT_THAT(lastMessage().text, AllOf(HasSubstr("216 of 216"), Not(HasSubstr("Cancelled"))));
}

TEST_F(LibraryBuilder, AddsWhatIsMissingToTheSameDesign) {
  EXPECT_TRUE(buildAndCancelAfter(100));
  session().answerNext(adsk::core::DialogYes);
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
  EXPECT_THAT(messages()[1], HasSubstr("holds 100 of the 216 RAL appearances"));
  EXPECT_THAT(lastMessage().text, HasSubstr("216 of 216 RAL appearances are in the design: 116 made now, 100 there"));
}

TEST_F(LibraryBuilder, FillsGapsAndLeavesWhatIsThere) {
  session().openDesign(machine());
  auto own = std::make_shared<headless::model::Appearance>();
  own->name = ralTable()[7].name;
  own->colour = {1, 2, 3};
  auto& listed = session().design().appearances;
  host().document()->history.assign(listed, {own});
  session().answerNext(adsk::core::DialogYes);
  EXPECT_TRUE(build());
  EXPECT_THAT(listed, SizeIs(216));
  EXPECT_EQ(listed[0], own);
  EXPECT_EQ(own->colour, (headless::model::Colour{1, 2, 3}));
  EXPECT_THAT(session().messageBoxes().front().text, HasSubstr("The open design \"Machine\" holds 1 of the 216"));
  EXPECT_THAT(lastMessage().text, HasSubstr("215 made now, 1 there before"));
}

TEST_F(LibraryBuilder, MakesNothingTwice) {
  EXPECT_TRUE(build());
  session().answerNext(adsk::core::DialogYes);
  const std::size_t changes = host().document()->history.revision();
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
  EXPECT_EQ(host().document()->history.revision(), changes);
  EXPECT_THAT(lastMessage().text, AllOf(HasSubstr("0 made now, 216 there before"), HasSubstr("RAL_COLORS.adsklib")));
}

TEST_F(LibraryBuilder, CountsWhatWasThereWhenItIsCancelledAgain) {
  EXPECT_TRUE(buildAndCancelAfter(50));
  session().answerNext(adsk::core::DialogYes);
  EXPECT_TRUE(buildAndCancelAfter(80));
  EXPECT_EQ(appearances(), firstRows(80));
  EXPECT_THAT(lastMessage().text, HasSubstr("80 of 216 RAL appearances are in the design: 30 made now, 50 there"));
}

TEST_F(LibraryBuilder, StartsANewDesignWhenTheUserWantsOne) {
  EXPECT_TRUE(buildAndCancelAfter(10));
  session().answerNext(adsk::core::DialogNo);
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
  session().closeDocument();
  EXPECT_EQ(appearances(), firstRows(10));
}

TEST_F(LibraryBuilder, DoesNothingWhenTheUserCancelsTheQuestion) {
  EXPECT_TRUE(buildAndCancelAfter(10));
  session().answerNext(adsk::core::DialogCancel);
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), firstRows(10));
  EXPECT_THAT(session().messageBoxes(), SizeIs(2));
}

TEST_F(LibraryBuilder, CanBeTakenBackStepByStep) {
  EXPECT_TRUE(buildAndCancelAfter(2));
  while (!host().document()->history.undoSteps().empty()) {
    session().undo();
  }
  EXPECT_THAT(appearances(), IsEmpty());
}

TEST_F(LibraryBuilder, WorksBesideAnotherProductThanADesign) {
  host().state().isOtherProductActive = true;
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
}

TEST_F(LibraryBuilder, ExportsItsEntryPointOnly) {
  EXPECT_THAT(exportedNames(libraryBuilderModule()), ElementsAre("run"));
}

class LibraryBuilderUnderProfile : public LibraryBuilderTest, public WithRow<std::string> {};

TABLE(Profiles, LibraryBuilderUnderProfile, byText, headless::profileNames());

TABLE_TEST(LibraryBuilderUnderProfile, MakesAndCompletesAll) {
  start(headless::profileNamed(row()));
  EXPECT_TRUE(buildAndCancelAfter(5));
  EXPECT_EQ(appearances(), firstRows(5));
  session().answerNext(adsk::core::DialogYes);
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
}

}  // namespace
}  // namespace tests
