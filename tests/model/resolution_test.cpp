// What objects show and why: the lower level wins, proxies share the body's own look, and looks given inside a
// sub-assembly show wherever it is used.
#include "host/model/resolution.h"

#include <gtest/gtest.h>

#include <ostream>

namespace headless::model {
namespace {

/// root holds Sub:1 and Sub:2, Sub holds Unit:1, Unit holds Part:1, Part has a body with two faces.
struct ResolutionTest : testing::Test {
  Design design{"Assembly"};
  Component& sub = design.addComponent("Sub");
  Component& unit = design.addComponent("Unit");
  Component& part = design.addComponent("Part");
  Body& body = part.addBody("Body1");
  Face& face = body.addFace();
  Face& otherFace = body.addFace();

  Occurrence* subOne = nullptr;
  Occurrence* subTwo = nullptr;
  Occurrence* unitOne = nullptr;
  Occurrence* partOne = nullptr;
  Occurrence* partTwo = nullptr;

  void SetUp() override {
    design.root().addInstance(sub);
    design.root().addInstance(sub);
    sub.addInstance(unit);
    unit.addInstance(part);
    subOne = design.root().occurrences()[0];
    subTwo = design.root().occurrences()[1];
    unitOne = subOne->children[0];
    partOne = unitOne->children[0];
    partTwo = subTwo->children[0]->children[0];
  }

  static std::shared_ptr<const Appearance> look(std::uint8_t red) { return makeColourAppearance({red, 0, 0}); }
};

TEST_F(ResolutionTest, TheLowerLevelWins) {
  const auto onFace = look(1);
  const auto onBody = look(2);
  const auto onPart = look(3);
  const auto onUnit = look(4);
  const auto onSub = look(5);
  struct Case {
    const char* what;
    bool face, body, part, unit, sub;
    std::shared_ptr<const Appearance> faceShows;
    Source faceSource;
    std::shared_ptr<const Appearance> bodyShows;
    Source bodySource;
  };
  const auto ofMaterial = defaultMaterial()->appearance;
  const Case cases[] = {
      {"nothing", false, false, false, false, false, ofMaterial, Source::Material, ofMaterial, Source::Material},
      {"top", false, false, false, false, true, onSub, Source::Occurrence, onSub, Source::Occurrence},
      {"middle", false, false, false, true, false, onUnit, Source::Occurrence, onUnit, Source::Occurrence},
      {"middle before top", false, false, false, true, true, onUnit, Source::Occurrence, onUnit, Source::Occurrence},
      {"nearest before top", false, false, true, false, true, onPart, Source::Occurrence, onPart, Source::Occurrence},
      {"nearest", false, false, true, true, true, onPart, Source::Occurrence, onPart, Source::Occurrence},
      {"body", false, true, false, false, false, onBody, Source::Body, onBody, Source::Body},
      {"body before all", false, true, true, true, true, onBody, Source::Body, onBody, Source::Body},
      {"face", true, false, false, false, false, onFace, Source::Face, ofMaterial, Source::Material},
      {"face before occurrence", true, false, true, false, false, onFace, Source::Face, onPart, Source::Occurrence},
      {"face before body", true, true, false, false, true, onFace, Source::Face, onBody, Source::Body},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    face.appearance = c.face ? onFace : nullptr;
    body.appearance = c.body ? onBody : nullptr;
    partOne->appearance = c.part ? onPart : nullptr;
    unitOne->appearance = c.unit ? onUnit : nullptr;
    subOne->appearance = c.sub ? onSub : nullptr;
    const Look faceLook = lookOf(face, partOne);
    EXPECT_EQ(faceLook.appearance, c.faceShows);
    EXPECT_EQ(faceLook.source, c.faceSource);
    for (const Look& bodyLook : {lookOf(body, partOne), lookOf(otherFace, partOne)}) {
      EXPECT_EQ(bodyLook.appearance, c.bodyShows);
      EXPECT_EQ(bodyLook.source, c.bodySource);
    }
  }
}

TEST_F(ResolutionTest, AnOccurrencesLookIsLimitedToItsPath) {
  subOne->appearance = look(1);
  EXPECT_EQ(lookOf(body, partOne).source, Source::Occurrence);
  EXPECT_EQ(lookOf(body, partTwo).source, Source::Material);
  EXPECT_EQ(lookOf(body, nullptr).source, Source::Material);
}

TEST_F(ResolutionTest, ABodysLookShowsEverywhere) {
  body.appearance = look(1);
  for (const Occurrence* context : {partOne, partTwo, static_cast<Occurrence*>(nullptr)}) {
    EXPECT_EQ(lookOf(body, context).appearance, body.appearance);
    EXPECT_EQ(lookOf(face, context).source, Source::Body);
  }
}

TEST_F(ResolutionTest, TheMaterialsAppearanceIsTheLastResort) {
  const auto brass = look(7);
  body.material = makeMaterial("Brass", 8500, brass);
  EXPECT_EQ(lookOf(face, partOne).appearance, brass);
  EXPECT_EQ(lookOf(body, nullptr).appearance, brass);
}

TEST_F(ResolutionTest, ALookGivenInsideASubAssemblyShowsWhereverItIsUsed) {
  Occurrence* native = unit.occurrences()[0];
  native->appearance = look(1);
  for (const Occurrence* context : {partOne, partTwo}) {
    const Look shown = lookOf(body, context);
    EXPECT_EQ(shown.appearance, native->appearance);
    EXPECT_EQ(shown.source, Source::Occurrence);
    EXPECT_EQ(lookOf(face, context).appearance, native->appearance);
  }
  EXPECT_EQ(lookCarrier(*partOne), native);
  EXPECT_EQ(lookCarrier(*unitOne), nullptr);
}

TEST_F(ResolutionTest, ALookGivenToAnOccurrenceIsNotThatOfTheOnesBelow) {
  Occurrence* unitInSub = sub.occurrences()[0];
  unitInSub->appearance = look(1);
  EXPECT_EQ(lookCarrier(*unitOne), unitInSub);
  EXPECT_EQ(lookCarrier(*partOne), nullptr);
  EXPECT_EQ(lookOf(body, partOne).appearance, unitInSub->appearance);
}

TEST_F(ResolutionTest, LooksGivenInsideSubAssembliesTakeTheirTurn) {
  Occurrence* partInUnit = unit.occurrences()[0];
  Occurrence* unitInSub = sub.occurrences()[0];
  Occurrence* partInSub = unitInSub->children[0];

  subOne->appearance = look(1);
  EXPECT_EQ(lookOf(body, partOne).appearance, subOne->appearance);
  unitInSub->appearance = look(2);
  EXPECT_EQ(lookOf(body, partOne).appearance, unitInSub->appearance);
  unitOne->appearance = look(3);
  EXPECT_EQ(lookOf(body, partOne).appearance, unitOne->appearance);
  partInSub->appearance = look(4);
  EXPECT_EQ(lookOf(body, partOne).appearance, partInSub->appearance);
  partInUnit->appearance = look(5);
  EXPECT_EQ(lookOf(body, partOne).appearance, partInUnit->appearance);
  partOne->appearance = look(6);
  EXPECT_EQ(lookOf(body, partOne).appearance, partOne->appearance);
  EXPECT_EQ(lookOf(body, partTwo).appearance, partInUnit->appearance);

  EXPECT_EQ(lookCarrier(*partOne), partOne);
  EXPECT_EQ(lookCarrier(*partTwo), partInUnit);
  EXPECT_EQ(lookCarrier(*partInSub), partInSub);
  EXPECT_EQ(lookCarrier(*subTwo), nullptr);
}

TEST_F(ResolutionTest, LooksInTheRootsTreeDoNotShowInASubAssemblysOwn) {
  Occurrence* partInSub = sub.occurrences()[0]->children[0];
  unitOne->appearance = look(1);
  EXPECT_EQ(lookOf(body, partInSub).source, Source::Material);
  EXPECT_EQ(lookCarrier(*partInSub), nullptr);
}

TEST(Resolution, CopesWithDeepChains) {
  constexpr int depth = 10'000;
  Design design("Chain");
  Component* outer = &design.root();
  for (int i = 0; i < depth; ++i) {
    Component& inner = design.addComponent("Link");
    outer->addInstance(inner);
    outer = &inner;
  }
  Body& body = outer->addBody("Body1");
  const auto& all = design.root().allOccurrences();
  all.front()->appearance = makeColourAppearance({1, 0, 0});
  EXPECT_EQ(lookOf(body, all.back()).appearance, all.front()->appearance);
  const Occurrence* native = all.front()->component().allOccurrences().back();
  EXPECT_EQ(lookOf(body, native).source, Source::Material);
  EXPECT_EQ(lookOf(body, all.back()).appearance, all.front()->appearance);
}

TEST(MaterialOf, IsSharedByAllBodiesOrWasAssigned) {
  Design design("Part");
  Component& root = design.root();
  const auto brass = makeMaterial("Brass", 8500, makeColourAppearance({1, 2, 3}));
  EXPECT_EQ(materialOf(root), nullptr);
  root.material = brass;
  EXPECT_EQ(materialOf(root), brass);
  Body& one = root.addBody("Body1");
  EXPECT_EQ(materialOf(root), defaultMaterial());
  Body& two = root.addBody("Body2");
  two.material = brass;
  EXPECT_EQ(materialOf(root), nullptr);
  one.material = brass;
  EXPECT_EQ(materialOf(root), brass);
}

}  // namespace
}  // namespace headless::model
