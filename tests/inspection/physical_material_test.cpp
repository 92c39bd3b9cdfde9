// What the dialog says about the selection's physical material. The missing closing tag and the two spellings of
// "various" are the product's own.
#include "inspection/physical_material.h"

#include "tests/inspection/inspection_fixture.h"
#include "tests/inspection/stand_ins.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::makeObject;
using headless::model::Component;
using headless::model::makeMaterial;
using headless::model::Material;
using headless::model::MaterialProperty;

std::shared_ptr<const Material> materialOf(const std::string& name, double density) {
  return makeMaterial(name, density, headless::model::defaultMaterial()->appearance);
}

std::shared_ptr<const Material> materialWith(const std::string& name, std::vector<MaterialProperty> properties) {
  Material material = *headless::model::defaultMaterial();
  material.name = name;
  material.properties = std::move(properties);
  return std::make_shared<const Material>(std::move(material));
}

struct DensityCase {
  const char* name;
  double density;
  const char* shown;
};

class MaterialDensity : public InspectionTest, public WithRow<DensityCase> {};

TABLE(Values, MaterialDensity, byName,
      {{"Whole", 850.0, "850"},
       {"Fraction", 850.9, "850"},
       {"JustBelowAThousand", 999.99, "999"},
       {"BelowOne", 0.25, "0"},
       {"Zero", 0.0, "0"},
       {"WithoutThousandsSeparator", 1234567.0, "1234567"},
       {"Negative", -1.0, ""},
       {"BarelyNegative", -1e-9, ""}});

TABLE_TEST(MaterialDensity, IsShownInWholeUnits) {
  start();
  body("Machine", "Base").material = materialOf("Stuff", row().density);
  openDialog();
  session().pick("Base");
  EXPECT_EQ(materialText(),
            std::string("Physical material: <b>Stuff</b>;  Density: ") + row().shown + " kg.m<sup>-3</sup>");
}

struct LibraryCase {
  const char* material;
  const char* text;
};

class MaterialOfALibrary : public InspectionTest, public WithRow<LibraryCase> {};

TABLE(Materials, MaterialOfALibrary, [](const auto& row) { return std::string(row.material); },
      {{"Steel 37", "Physical material: <b>Steel 37</b>;  Density: 7850 kg.m<sup>-3</sup>"},
       {"Foam", "Physical material: <b>Foam</b>;  Density: 999 kg.m<sup>-3</sup>"},
       {"Aerogel", "Physical material: <b>Aerogel</b>;  Density: 0 kg.m<sup>-3</sup>"},
       {"Unknown alloy", "Physical material: <b>Unknown alloy"},
       {"Odd alloy", "Physical material: <b>Odd alloy"},
       {"Antimatter", "Physical material: <b>Antimatter</b>;  Density:  kg.m<sup>-3</sup>"}});

TABLE_TEST(MaterialOfALibrary, IsShownOnceApplied) {
  startDialog();
  session().pick("Base");
  session().choose("idMaterialList", row().material);
  session().click("idBtnApply");
  session().pick("Base");
  EXPECT_EQ(materialText(), row().text);
}

class PhysicalMaterial : public InspectionTest {};

TEST_F(PhysicalMaterial, DensityIsFoundByItsIdAmongOtherProperties) {
  start();
  body("Machine", "Base").material = materialWith("Stuff", {{"structural_Poisson_ratio", "Density", 0.3, ""},
                                                            headless::model::densityProperty(42),
                                                            {"density", "Density", 43.0, ""}});
  openDialog();
  session().pick("Base");
  EXPECT_EQ(materialText(), "Physical material: <b>Stuff</b>;  Density: 42 kg.m<sup>-3</sup>");
}

TEST_F(PhysicalMaterial, DensityIsNotConvertedWhateverItsUnit) {
  start();
  body("Machine", "Base").material =
      materialWith("Stuff", {{headless::model::densityPropertyId, "Density", 7.85, "g/cm^3"}});
  openDialog();
  session().pick("Base");
  EXPECT_EQ(materialText(), "Physical material: <b>Stuff</b>;  Density: 7 kg.m<sup>-3</sup>");
}

TEST_F(PhysicalMaterial, NameIsShownAsItIs) {
  start();
  body("Machine", "Base").material = materialOf("</b>Käse & Wein", 1);
  openDialog();
  session().pick("Base");
  EXPECT_EQ(materialText(), "Physical material: <b></b>Käse & Wein</b>;  Density: 1 kg.m<sup>-3</sup>");
}

TEST_F(PhysicalMaterial, OfAFaceIsThatOfItsBody) {
  start();
  body("Plate", "Plate1").material = materialOf("Brass", 8500);
  openDialog();
  pickOnly("Face");
  session().pick("Frame:2+Plate:1/Plate1/Face3");
  EXPECT_EQ(materialText(), "Physical material: <b>Brass</b>;  Density: 8500 kg.m<sup>-3</sup>");
}

TEST_F(PhysicalMaterial, OfAnOccurrenceIsThatOfItsComponent) {
  start();
  body("Plate", "Plate1").material = materialOf("Brass", 8500);
  openDialog();
  pickOnly("Component");
  session().pick("Frame:1+Plate:1");
  EXPECT_EQ(materialText(), "Physical material: <b>Brass</b>;  Density: 8500 kg.m<sup>-3</sup>");
}

TEST_F(PhysicalMaterial, OfAnOccurrenceWithoutDensityEndsInItsName) {
  start();
  body("Plate", "Plate1").material = materialWith("Wood", {});
  openDialog();
  pickOnly("Component");
  session().pick("Frame:1+Plate:1");
  EXPECT_EQ(materialText(), "Physical material: <b>Wood");
}

TEST_F(PhysicalMaterial, OfAnOccurrenceWithMixedBodiesVariesInBold) {
  start();
  body("Bolt", "Head").material = materialOf("Brass", 8500);
  openDialog();
  pickOnly("Component");
  session().pick("Bolt:2");
  EXPECT_EQ(materialText(), "Physical material: <b>various");
}

TEST_F(PhysicalMaterial, OfAnOccurrenceOfAnEmptyComponentVariesInBold) {
  startDialog();
  pickOnly("Component");
  session().pick("Frame:1");
  EXPECT_EQ(materialText(), "Physical material: <b>various");
}

TEST_F(PhysicalMaterial, OfARootComponentIsItsOwn) {
  startDialog();
  pickRoot();
  EXPECT_EQ(materialText(), steelText);
}

TEST_F(PhysicalMaterial, OfARootComponentWithoutMaterialVariesInPlainText) {
  start();
  design().root().addBody("Cover").material = materialOf("Brass", 8500);
  openDialog();
  pickRoot();
  EXPECT_EQ(materialText(), "Physical material: various");
}

TEST_F(PhysicalMaterial, OfARootComponentWithoutDensityEndsInItsName) {
  start();
  body("Machine", "Base").material = materialWith("Wood", {});
  openDialog();
  pickRoot();
  EXPECT_EQ(materialText(), "Physical material: <b>Wood");
}

TEST_F(PhysicalMaterial, OfAnEmptyComponentIsWhatWasAssignedToIt) {
  start();
  componentNamed(design(), "Frame").material = materialOf("Brass", 8500);
  openDialog();
  pickOnly("Component");
  session().pick("Frame:1");
  EXPECT_EQ(materialText(), "Physical material: <b>Brass</b>;  Density: 8500 kg.m<sup>-3</sup>");
}

TEST_F(PhysicalMaterial, VariesInBoldWithoutLookingForADensity) {
  startDialog();
  pickOnly("Component");
  startCounting();
  session().pick("Frame:1");
  EXPECT_EQ(callsOf("Material.materialProperties"), 0U);
}

TEST_F(PhysicalMaterial, OfTwoBodiesOfOneMaterialIsOneText) {
  startDialog();
  pickAll({"Base", "Bolt:2/Head"});
  EXPECT_EQ(materialText(), steelText);
}

TEST_F(PhysicalMaterial, OfSteelAndBrassIsVarious) {
  start();
  body("Bolt", "Head").material = materialOf("Brass", 8500);
  openDialog();
  pickAll({"Base", "Bolt:2/Head"});
  EXPECT_EQ(materialText(), "Physical material: Various");
}

TEST_F(PhysicalMaterial, SeveralDifferWhenOnlyTheWholeDensityDoes) {
  start();
  body("Machine", "Base").material = materialOf("Stuff", 10);
  body("Bolt", "Head").material = materialOf("Stuff", 11);
  openDialog();
  pickAll({"Base", "Bolt:2/Head"});
  EXPECT_EQ(materialText(), "Physical material: Various");
}

TEST_F(PhysicalMaterial, SeveralAreAlikeWhenOnlyTheFractionDiffers) {
  start();
  body("Machine", "Base").material = materialOf("Stuff", 10.1);
  body("Bolt", "Head").material = materialOf("Stuff", 10.9);
  openDialog();
  pickAll({"Base", "Bolt:2/Head"});
  EXPECT_EQ(materialText(), "Physical material: <b>Stuff</b>;  Density: 10 kg.m<sup>-3</sup>");
}

TEST_F(PhysicalMaterial, OfTwoOccurrencesThatVaryIsWrittenSmall) {
  startDialog();
  pickOnly("Component");
  pickAll({"Frame:1", "Frame:2"});
  EXPECT_EQ(materialText(), "Physical material: <b>various");
}

TEST_F(PhysicalMaterial, OfAVaryingAndASteelOccurrenceIsWrittenLarge) {
  startDialog();
  pickOnly("Component");
  pickAll({"Frame:1", "Bolt:2"});
  EXPECT_EQ(materialText(), "Physical material: Various");
}

struct MissingMaterialCase {
  const char* name;
  const char* filter;
  const char* picked;
  const char* call;
};

class PhysicalMaterialMissing : public InspectionTest, public WithRow<MissingMaterialCase> {};

TABLE(Handles, PhysicalMaterialMissing, byName,
      {{"MaterialOfABody", "Body", "Base", "BRepBody.material"},
       {"MaterialOfAFacesBody", "Face", "Base/Face1", "BRepBody.material"},
       {"BodyOfAFace", "Face", "Base/Face1", "BRepFace.body"},
       {"ComponentOfAnOccurrence", "Component", "Frame:1+Plate:1", "Occurrence.component"},
       {"PropertiesOfAMaterial", "Body", "Base", "Material.materialProperties"}});

TABLE_TEST(PhysicalMaterialMissing, RaisesAndLeavesBothTexts) {
  startDialog();
  pickOnly(row().filter);
  session().pick(row().picked);
  const std::string appearanceBefore = appearanceText();
  const std::string materialBefore = materialText();
  letGoSilently();
  // Either text would be another one now.
  for (const auto& component : design().components) {
    for (const auto& each : component->bodies) {
      each->material = materialOf("Brass", 8500);
      each->appearance = look("Red");
    }
  }
  answerNothingAt(row().call);
  session().pick(row().picked);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), appearanceBefore);
  EXPECT_EQ(materialText(), materialBefore);
}

struct NoErrorCase {
  const char* name;
  const char* filter;
  const char* picked;
  const char* call;
  const char* text;
};

class PhysicalMaterialWithout : public InspectionTest, public WithRow<NoErrorCase> {};

TABLE(Answers, PhysicalMaterialWithout, byName,
      {{"DensityProperty", "Body", "Base", "Properties.itemById", "Physical material: <b>Steel"},
       {"MaterialOfAComponent", "Component", "Frame:1+Plate:1", "Component.material",
        "Physical material: <b>various"}});

TABLE_TEST(PhysicalMaterialWithout, IsNoError) {
  startDialog();
  pickOnly(row().filter);
  answerNothingAt(row().call);
  session().pick(row().picked);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(materialText(), row().text);
}

class PhysicalMaterialRoutine : public LinkedInspectionTest {
 protected:
  void SetUp() override { startDialog(); }
};

TEST_F(PhysicalMaterialRoutine, OtherClassHasNoName) {
  EXPECT_EQ(tintora::describePhysicalMaterial(handleOf(look("Red"))), "Physical material: <b>");
}

TEST_F(PhysicalMaterialRoutine, NoEntityRaises) {
  EXPECT_THROW(tintora::describePhysicalMaterial({}), std::exception);
}

class PhysicalMaterialOfImpostor : public LinkedInspectionTest, public WithRow<const char*> {};

TABLE(Classes, PhysicalMaterialOfImpostor, byText,
      {adsk::fusion::Occurrence::classType(), adsk::fusion::Component::classType(), adsk::fusion::BRepBody::classType(),
       adsk::fusion::BRepFace::classType()});

TABLE_TEST(PhysicalMaterialOfImpostor, Raises) {
  startDialog();
  EXPECT_THROW(tintora::describePhysicalMaterial(makeObject<Impostor>(row())), std::exception);
}

}  // namespace
}  // namespace tests
