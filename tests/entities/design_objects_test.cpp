// Components, occurrences, bodies and faces as the API shows them: names, owners, contexts, looks and their sources.
#include "host/entities/design_objects.h"

#include "tests/entities/design_fixture.h"

namespace headless {
namespace {

using adsk::core::Appearance;
using adsk::core::AppearanceSourceTypes;
using adsk::core::Base;
using adsk::core::Ptr;
using adsk::fusion::BRepBody;

struct DesignObjectsTest : DesignFixture {
  /// What body and its first face show, and why.
  static void expectLooks(const Ptr<BRepBody>& body, const Ptr<Appearance>& bodyShows, int bodySource,
                          const Ptr<Appearance>& faceShows, int faceSource) {
    const auto face = body->faces()->item(0);
    EXPECT_EQ(body->appearance(), bodyShows);
    EXPECT_EQ(body->appearanceSourceType(), bodySource);
    EXPECT_EQ(face->appearance(), faceShows);
    EXPECT_EQ(face->appearanceSourceType(), faceSource);
  }
};

TEST_F(DesignObjectsTest, SayWhatTheyAre) {
  const auto bolt = occurrence("Sub:1+Bolt:2");
  const std::pair<Ptr<Base>, const char*> cases[] = {
      {store->design(), "adsk::fusion::Design"},
      {root, "adsk::fusion::Component"},
      {root->occurrences(), "adsk::fusion::Occurrences"},
      {root->allOccurrences(), "adsk::fusion::OccurrenceList"},
      {bolt, "adsk::fusion::Occurrence"},
      {bolt->bRepBodies(), "adsk::fusion::BRepBodies"},
      {bolt->bRepBodies()->item(0), "adsk::fusion::BRepBody"},
      {bolt->bRepBodies()->item(0)->faces(), "adsk::fusion::BRepFaces"},
      {bolt->bRepBodies()->item(0)->faces()->item(0), "adsk::fusion::BRepFace"},
      {green, "adsk::core::Appearance"},
      {lead, "adsk::core::Material"},
      {library, "adsk::core::MaterialLibrary"},
  };
  for (const auto& [object, type] : cases) {
    EXPECT_STREQ(object->objectType(), type);
    EXPECT_TRUE(object->isValid()) << type;
  }
}

TEST_F(DesignObjectsTest, NamesAndOwners) {
  const auto bolt = occurrence("Sub:1+Bolt:2");
  EXPECT_EQ(bolt->name(), "Bolt:2");
  EXPECT_EQ(bolt->component()->name(), "Bolt");
  EXPECT_EQ(bolt->component()->parentDesign(), store->design());
  EXPECT_EQ(root->name(), "Assembly");
  EXPECT_EQ(headOf("Bolt:3")->parentComponent(), bolt->component());
}

TEST_F(DesignObjectsTest, RootBodiesAreNativeAndOthersAreSeenThroughTheirOccurrence) {
  const auto base = root->bRepBodies()->item(0);
  EXPECT_FALSE(base->assemblyContext());
  EXPECT_FALSE(base->faces()->item(0)->assemblyContext());
  const auto body = headOf("Sub:2+Bolt:1");
  EXPECT_EQ(body->assemblyContext(), occurrence("Sub:2+Bolt:1"));
  EXPECT_EQ(body->faces()->item(1)->assemblyContext(), occurrence("Sub:2+Bolt:1"));
  EXPECT_EQ(body->faces()->item(1)->body(), body);
  EXPECT_FALSE(body->parentComponent()->bRepBodies()->item(0)->assemblyContext());
}

TEST_F(DesignObjectsTest, LooksFollowTheSourceTable) {
  const auto body = headOf("Sub:1+Bolt:1");
  const auto face = body->faces()->item(0);
  const auto steel = body->material()->appearance();
  const auto red = libraryAppearance("Red");
  const auto blue = libraryAppearance("Blue");

  expectLooks(body, steel, 0, steel, 0);
  EXPECT_TRUE(occurrence("Sub:1")->appearance(red));
  expectLooks(body, red, 2, red, 2);
  EXPECT_TRUE(occurrence("Sub:1+Bolt:1")->appearance(blue));
  expectLooks(body, blue, 2, blue, 2);
  EXPECT_TRUE(body->appearance(green));
  expectLooks(body, green, 1, green, 1);
  EXPECT_TRUE(face->appearance(red));
  expectLooks(body, green, 1, red, 3);

  EXPECT_TRUE(body->appearance(nullptr));
  expectLooks(body, blue, 2, red, 3);
  EXPECT_TRUE(face->appearance(nullptr));
  expectLooks(body, blue, 2, blue, 2);
  EXPECT_TRUE(occurrence("Sub:1+Bolt:1")->appearance(nullptr));
  expectLooks(body, red, 2, red, 2);
  EXPECT_TRUE(occurrence("Sub:1")->appearance(nullptr));
  expectLooks(body, steel, 0, steel, 0);
}

TEST_F(DesignObjectsTest, AnOwnLookMayBeReportedAsOverride) {
  profile.ownAppearanceIsOverride = true;
  const auto body = headOf("Sub:1+Bolt:1");
  const auto face = body->faces()->item(0);
  body->appearance(green);
  EXPECT_EQ(body->appearanceSourceType(), 4);
  EXPECT_EQ(face->appearanceSourceType(), 1);
  face->appearance(green);
  EXPECT_EQ(face->appearanceSourceType(), 4);
  body->appearance(nullptr);
  occurrence("Sub:1")->appearance(green);
  EXPECT_EQ(body->appearanceSourceType(), 2);
}

TEST_F(DesignObjectsTest, ABodysLookShowsInAllItsOccurrences) {
  headOf("Sub:1+Bolt:1")->appearance(green);
  for (const char* path : {"Sub:1+Bolt:2", "Sub:2+Bolt:1", "Bolt:3"}) {
    EXPECT_EQ(headOf(path)->appearance(), green) << path;
    EXPECT_EQ(headOf(path)->appearanceSourceType(), 1) << path;
  }
  EXPECT_EQ(occurrence("Bolt:3")->component()->bRepBodies()->item(0)->appearance(), green);
}

TEST_F(DesignObjectsTest, AnOccurrenceTellsItsOwnLookOnly) {
  EXPECT_FALSE(occurrence("Sub:1")->appearance());
  occurrence("Sub:1")->appearance(green);
  EXPECT_EQ(occurrence("Sub:1")->appearance(), green);
  EXPECT_FALSE(occurrence("Sub:1+Bolt:1")->appearance());
  EXPECT_FALSE(occurrence("Sub:2")->appearance());
}

TEST_F(DesignObjectsTest, ALookGivenInsideASubAssemblyCanBeSeenAndRemovedFromOutside) {
  const auto inside = occurrence("Sub:1")->component()->occurrences()->item(0);
  inside->appearance(green);
  for (const char* path : {"Sub:1+Bolt:1", "Sub:2+Bolt:1"}) {
    EXPECT_EQ(occurrence(path)->appearance(), green) << path;
    EXPECT_EQ(headOf(path)->appearanceSourceType(), 2) << path;
  }
  EXPECT_FALSE(occurrence("Sub:1+Bolt:2")->appearance());
  EXPECT_TRUE(occurrence("Sub:1+Bolt:1")->appearance(nullptr));
  EXPECT_FALSE(occurrence("Sub:1+Bolt:1")->appearance());
  EXPECT_FALSE(inside->appearance());
}

TEST_F(DesignObjectsTest, AMaterialIsSharedByAllWhoSeeTheBody) {
  EXPECT_TRUE(headOf("Sub:1+Bolt:1")->material(lead));
  EXPECT_EQ(headOf("Bolt:3")->material(), lead);
  EXPECT_EQ(headOf("Bolt:3")->appearance(), lead->appearance());
  EXPECT_EQ(occurrence("Bolt:3")->bRepBodies()->itemByName("Shaft")->material()->name(), "Steel");
}

TEST_F(DesignObjectsTest, AMaterialLeavesTheOwnLook) {
  const auto body = headOf("Bolt:3");
  body->appearance(green);
  body->material(lead);
  EXPECT_EQ(body->appearance(), green);
}

TEST_F(DesignObjectsTest, AComponentsMaterialGoesToAllItsOwnBodies) {
  const auto component = occurrence("Bolt:3")->component();
  EXPECT_EQ(component->material()->name(), "Steel");
  headOf("Bolt:3")->material(lead);
  EXPECT_FALSE(component->material()) << "bodies differ";
  EXPECT_TRUE(component->material(lead));
  EXPECT_EQ(component->material(), lead);
  EXPECT_EQ(component->bRepBodies()->item(1)->material(), lead);

  EXPECT_TRUE(root->material(lead));
  EXPECT_EQ(root->bRepBodies()->item(0)->material(), lead);
  const auto assembly = occurrence("Sub:1")->component();
  EXPECT_FALSE(assembly->material());
  EXPECT_TRUE(assembly->material(lead));
  EXPECT_EQ(assembly->material(), lead);
}

TEST_F(DesignObjectsTest, NoMaterialIsRefusedAndChangesNothing) {
  const auto body = headOf("Bolt:3");
  EXPECT_FALSE(body->material(nullptr));
  EXPECT_FALSE(body->parentComponent()->material(nullptr));
  EXPECT_EQ(body->material()->name(), "Steel");
  EXPECT_TRUE(history.undoSteps().empty());
}

TEST_F(DesignObjectsTest, NameThemselvesInATrace) {
  gate.startTrace();
  headOf("Sub:1+Bolt:1")->appearance(green);
  gate.stopTrace();
  EXPECT_NE(gate.traceText().find("BRepBody(Sub:1+Bolt:1+Head).appearance=(Appearance(Opaque(0,128,0))) -> true"),
            std::string::npos)
      << gate.traceText();
}

}  // namespace
}  // namespace headless
