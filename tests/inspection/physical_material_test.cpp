// What the dialog says about the selection's physical material. The missing closing tag and the two spellings of
// "various" are the product's own.
#include "inspection/physical_material.h"

#include <algorithm>

#include "tests/inspection/inspection_fixture.h"
#include "tests/inspection/stand_ins.h"

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

void PrintTo(const DensityCase& value, std::ostream* stream) {
  *stream << value.name;
}

class MaterialDensity : public InspectionTest, public testing::WithParamInterface<DensityCase> {};

TEST_P(MaterialDensity, IsShownInWholeUnits) {
  start();
  body("Machine", "Base").material = materialOf("Stuff", GetParam().density);
  openDialog();
  session().pick("Base");
  EXPECT_EQ(materialText(),
            std::string("Physical material: <b>Stuff</b>;  Density: ") + GetParam().shown + " kg.m<sup>-3</sup>");
}

INSTANTIATE_TEST_SUITE_P(Values, MaterialDensity,
                         testing::Values(DensityCase{"Whole", 850.0, "850"}, DensityCase{"Fraction", 850.9, "850"},
                                         DensityCase{"JustBelowAThousand", 999.99, "999"},
                                         DensityCase{"BelowOne", 0.25, "0"}, DensityCase{"Zero", 0.0, "0"},
                                         DensityCase{"WithoutThousandsSeparator", 1234567.0, "1234567"},
                                         DensityCase{"Negative", -1.0, ""}, DensityCase{"BarelyNegative", -1e-9, ""}),
                         [](const auto& info) { return std::string(info.param.name); });

struct LibraryCase {
  const char* material;
  const char* text;
};

void PrintTo(const LibraryCase& value, std::ostream* stream) {
  *stream << value.material;
}

class MaterialOfALibrary : public InspectionTest, public testing::WithParamInterface<LibraryCase> {};

TEST_P(MaterialOfALibrary, IsShownOnceApplied) {
  startDialog();
  session().pick("Base");
  session().choose("idMaterialList", GetParam().material);
  session().click("idBtnApply");
  session().pick("Base");
  EXPECT_EQ(materialText(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Materials, MaterialOfALibrary,
    testing::Values(LibraryCase{"Steel 37", "Physical material: <b>Steel 37</b>;  Density: 7850 kg.m<sup>-3</sup>"},
                    LibraryCase{"Foam", "Physical material: <b>Foam</b>;  Density: 999 kg.m<sup>-3</sup>"},
                    LibraryCase{"Aerogel", "Physical material: <b>Aerogel</b>;  Density: 0 kg.m<sup>-3</sup>"},
                    LibraryCase{"Unknown alloy", "Physical material: <b>Unknown alloy"},
                    LibraryCase{"Odd alloy", "Physical material: <b>Odd alloy"},
                    LibraryCase{"Antimatter", "Physical material: <b>Antimatter</b>;  Density:  kg.m<sup>-3</sup>"}),
    [](const auto& info) {
      std::string name = info.param.material;
      name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
      return name;
    });

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

void PrintTo(const MissingMaterialCase& value, std::ostream* stream) {
  *stream << value.name;
}

class PhysicalMaterialMissing : public InspectionTest, public testing::WithParamInterface<MissingMaterialCase> {};

TEST_P(PhysicalMaterialMissing, RaisesAndLeavesBothTexts) {
  startDialog();
  pickOnly(GetParam().filter);
  session().pick(GetParam().picked);
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
  answerNothingAt(GetParam().call);
  session().pick(GetParam().picked);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), appearanceBefore);
  EXPECT_EQ(materialText(), materialBefore);
}

INSTANTIATE_TEST_SUITE_P(
    Handles, PhysicalMaterialMissing,
    testing::Values(MissingMaterialCase{"MaterialOfABody", "Body", "Base", "BRepBody.material"},
                    MissingMaterialCase{"MaterialOfAFacesBody", "Face", "Base/Face1", "BRepBody.material"},
                    MissingMaterialCase{"BodyOfAFace", "Face", "Base/Face1", "BRepFace.body"},
                    MissingMaterialCase{"ComponentOfAnOccurrence", "Component", "Frame:1+Plate:1",
                                        "Occurrence.component"},
                    MissingMaterialCase{"PropertiesOfAMaterial", "Body", "Base", "Material.materialProperties"}),
    [](const auto& info) { return std::string(info.param.name); });

struct NoErrorCase {
  const char* name;
  const char* filter;
  const char* picked;
  const char* call;
  const char* text;
};

void PrintTo(const NoErrorCase& value, std::ostream* stream) {
  *stream << value.name;
}

class PhysicalMaterialWithout : public InspectionTest, public testing::WithParamInterface<NoErrorCase> {};

TEST_P(PhysicalMaterialWithout, IsNoError) {
  startDialog();
  pickOnly(GetParam().filter);
  answerNothingAt(GetParam().call);
  session().pick(GetParam().picked);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(materialText(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Answers, PhysicalMaterialWithout,
                         testing::Values(NoErrorCase{"DensityProperty", "Body", "Base", "Properties.itemById",
                                                     "Physical material: <b>Steel"},
                                         NoErrorCase{"MaterialOfAComponent", "Component", "Frame:1+Plate:1",
                                                     "Component.material", "Physical material: <b>various"}),
                         [](const auto& info) { return std::string(info.param.name); });

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

class PhysicalMaterialOfImpostor : public LinkedInspectionTest, public testing::WithParamInterface<const char*> {};

TEST_P(PhysicalMaterialOfImpostor, Raises) {
  startDialog();
  EXPECT_THROW(tintora::describePhysicalMaterial(makeObject<Impostor>(GetParam())), std::exception);
}

INSTANTIATE_TEST_SUITE_P(Classes, PhysicalMaterialOfImpostor,
                         testing::Values(adsk::fusion::Occurrence::classType(), adsk::fusion::Component::classType(),
                                         adsk::fusion::BRepBody::classType(), adsk::fusion::BRepFace::classType()),
                         [](const auto& info) {
                           const std::string text = info.param;
                           return text.substr(text.rfind(':') + 1);
                         });

}  // namespace
}  // namespace tests
