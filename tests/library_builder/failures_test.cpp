// What the library builder says and leaves behind when the host does not play along.
#include <sstream>

#include "host/libraries/native_library.h"
#include "tests/library_builder/builder_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::Fault;
using headless::FaultAnswer;
using headless::model::Appearance;
using headless::model::Library;
using headless::model::Surface;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class LibraryBuilderFailures : public LibraryBuilderTest {
 protected:
  void fail(const std::string& call, std::size_t nth = 1) { host().gate().setFault({nth, FaultAnswer::Nothing, call}); }
  static Library library(const std::string& id, const std::vector<Appearance>& appearances) {
    Library made;
    made.id = id;
    made.name = "Library " + id;
    for (const Appearance& each : appearances) {
      made.appearances.push_back(std::make_shared<const Appearance>(each));
    }
    return made;
  }
  /// What is made when those are the libraries that come with the host.
  double roughnessOfSource(std::vector<Library> libraries) {
    start();
    host().materials().setNative(std::move(libraries));
    // The gloss is left as the source has it, which tells sources apart.
    host().gate().setFault({1, FaultAnswer::Nothing, "FloatProperty.value="});
    EXPECT_TRUE(buildAndCancelAfter(1));
    return session().design().appearances.at(0)->roughness.value_or(-1);
  }
};

const Appearance textured{"Prism-129", "Textured", {1, 1, 1}, Surface::Opaque, 0.9, true};
const Appearance metal{"Prism-129", "Metal", {1, 1, 1}, Surface::Metal, 0.8};
const Appearance plain{"Prism-129", "Plain", {1, 1, 1}, Surface::Opaque, 0.7};
const Appearance other{"other", "Other", {1, 1, 1}, Surface::Opaque, 0.6};
const Appearance otherTextured{"other", "Other", {1, 1, 1}, Surface::Opaque, 0.6, true};
const Appearance glass{"glass", "Glass", {1, 1, 1}, Surface::Transparent, 0.5};
const std::string usualId = headless::libraries::nativeLibraryId;

TEST_F(LibraryBuilderFailures, TakeTheDocumentedAppearanceFirst) {
  EXPECT_EQ(roughnessOfSource({library("x", {other}), library(usualId, {other, plain})}), 0.7);
}

TEST_F(LibraryBuilderFailures, TakeItFromAnotherLibraryWhenTheUsualOneIsMissing) {
  EXPECT_EQ(roughnessOfSource({library("x", {other}), library("y", {other, plain})}), 0.7);
  EXPECT_EQ(roughnessOfSource({library(usualId, {metal}), library("y", {plain})}), 0.7);
}

TEST_F(LibraryBuilderFailures, TakeAnyPlainColourWhenItIsMissing) {
  EXPECT_EQ(roughnessOfSource({library("x", {metal, glass, otherTextured}), library("y", {other})}), 0.6);
}

TEST_F(LibraryBuilderFailures, UseATextureUnderTheDocumentedIdForItsColour) {
  EXPECT_EQ(roughnessOfSource({library(usualId, {textured})}), 0.9);
  EXPECT_EQ(appearances(), firstRows(1));
  EXPECT_FALSE(session().design().appearances[0]->hasTexture);
}

TEST_F(LibraryBuilderFailures, LookInNoLibraryOfTheUsers) {
  host().materials().setNative({});
  host().materials().add(library("own", {plain, other}));
  EXPECT_FALSE(build());
  EXPECT_EQ(host().document(), nullptr);
  EXPECT_THAT(messages(), ElementsAre(AllOf(HasSubstr("no plain appearance"), HasSubstr("run the library builder"))));
  EXPECT_EQ(lastMessage().icon, adsk::core::CriticalIconType);
}

TEST_F(LibraryBuilderFailures, FindNoSourceWithoutAColour) {
  host().materials().setNative({library(usualId, {metal}), library("x", {glass, otherTextured}), library("empty", {})});
  EXPECT_FALSE(build());
  EXPECT_EQ(host().document(), nullptr);
  EXPECT_THAT(messages(), ElementsAre(HasSubstr("no plain appearance")));
}

TEST_F(LibraryBuilderFailures, SayNothingWithoutAnInterface) {
  host().state().hasUserInterface = false;
  EXPECT_FALSE(build());
  EXPECT_THAT(messages(), IsEmpty());
  EXPECT_EQ(host().document(), nullptr);
}

TEST_F(LibraryBuilderFailures, LeaveTheGlossOfASourceThatHasNone) {
  Appearance bare = plain;
  bare.roughness = std::nullopt;
  host().materials().setNative({library(usualId, {bare})});
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
  EXPECT_THAT(lastMessage().text, HasSubstr("The gloss of 216 could not be set"));
}

struct EarlyFailure {
  std::string call;
  std::string message;
  bool hasDesign = false;
};

class BeforeTheFirstColour : public LibraryBuilderFailures, public WithRow<EarlyFailure> {};

TABLE(Calls, BeforeTheFirstColour, [](const auto& row) { return row.call; },
      {{"Application.materialLibraries", "material libraries"},
       {"UserInterface.createProgressDialog", "progress dialog"},
       {"ProgressDialog.show", "progress dialog", true},
       {"Application.documents", "new design for the appearances cannot be made"},
       {"Documents.add", "new design for the appearances cannot be made"},
       {"Document.products", "new design does not give access"},
       {"Products.itemByProductType", "new design does not give access"},
       {"Design.appearances", "new design does not give access"}});

TABLE_TEST(BeforeTheFirstColour, IsToldAndMakesNothing) {
  fail(row().call);
  EXPECT_FALSE(build());
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(messages(), ElementsAre(AllOf(HasSubstr(row().message), HasSubstr("run the library builder"),
                                            Not(HasSubstr("of 216")))));
  EXPECT_EQ(host().document() != nullptr, row().hasDesign);
  EXPECT_THAT(appearances(), IsEmpty());
}

struct ColourFailure {
  std::string call;
  std::string message;
};

class InTheMiddle : public LibraryBuilderFailures, public WithRow<ColourFailure> {};

TABLE(Calls, InTheMiddle, [](const auto& row) { return row.call; },
      {{"Appearances.addByCopy", "could not be copied"},
       {"Appearance.name", "another name"},
       {"Appearance.appearanceProperties", "no colour property"},
       {"Properties.itemById", "no colour property"},
       {"Color.create", "refused"},
       {"ColorProperty.value=", "refused"},
       {"ColorProperty.value", "does not show the colour"},
       {"Color.red", "does not show the colour"},
       {"Color.green", "does not show the colour"},
       {"Color.blue", "does not show the colour"}});

TABLE_TEST(InTheMiddle, NamesTheColourAndLeavesNothingHalfMade) {
  // From the eleventh colour on, whatever the number of such calls per colour.
  bool isSet = false;
  session().whileBusy([&] {
    if (session().progress().value == 10 && !isSet) {
      isSet = true;
      fail(row().call);
    }
  });
  EXPECT_FALSE(build());
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(appearances(), firstRows(10));
  EXPECT_FALSE(session().isProgressShown());
  EXPECT_THAT(messages(),
              ElementsAre(AllOf(HasSubstr('"' + ralTable()[10].name + "\" cannot be made"), HasSubstr(row().message),
                                HasSubstr("10 of 216"), HasSubstr("Run the library builder again"))));
  // Running again makes the rest.
  session().whileBusy(nullptr);
  session().answerNext(adsk::core::DialogYes);
  EXPECT_TRUE(build());
  EXPECT_EQ(appearances(), ralTable());
}

TEST_F(LibraryBuilderFailures, SayWhatTheHostWouldNotDelete) {
  // The copy is made; then everything fails until the message.
  host().gate().startTrace();
  ASSERT_TRUE(buildAndCancelAfter(1));
  const std::string trace = host().gate().traceText();
  start();
  std::size_t calls = 0;
  std::istringstream lines(trace.substr(0, trace.find("ColorProperty(opaque_albedo).value=")));
  for (std::string line; std::getline(lines, line);) {
    calls += line.find('#') == line.find_first_not_of(' ') ? 0 : 1;
  }
  host().gate().setFault({calls + 1, FaultAnswer::Nothing, "", 2});
  EXPECT_FALSE(build());
  EXPECT_THAT(appearances(), SizeIs(1));
  EXPECT_THAT(messages(), ElementsAre(AllOf(HasSubstr("could not be deleted either"), HasSubstr("by hand"))));
}

TEST_F(LibraryBuilderFailures, SayThatTheDesignWasClosed) {
  session().whileBusy([this] {
    if (session().progress().value == 20) {
      session().closeDocument();
    }
  });
  EXPECT_FALSE(build());
  EXPECT_EQ(host().document(), nullptr);
  EXPECT_THAT(messages(), ElementsAre(AllOf(HasSubstr("was closed"), HasSubstr("Run the library builder again"))));
  EXPECT_THAT(host().gate().misuses(), IsEmpty());
}

TEST_F(LibraryBuilderFailures, StopWhenTheQuestionGetsNoAnswer) {
  EXPECT_TRUE(buildAndCancelAfter(3));
  EXPECT_FALSE(build());
  EXPECT_EQ(appearances(), firstRows(3));
  EXPECT_THAT(lastMessage().text, HasSubstr("got no answer"));
}

}  // namespace
}  // namespace tests
