// Files with one damaged place each, and files with things that the geometry kernel does not know.
#include "host/step/entity_check.h"

#include <gtest/gtest.h>

#include <string>

#include "host/model/materials.h"
#include "host/step/error.h"
#include "host/step/reader.h"
#include "host/step/writer.h"
#include "tests/step/edited_file.h"
#include "tests/step/foreign_files.h"
#include "tests/step/made_designs.h"
#include "tests/support/tables.h"

namespace headless::step {
namespace {

/// What "Root" with two parts is read as after an edit; the parts have colours and a material.
class EditedDesign : public ::testing::Test {
 protected:
  EditedDesign() {
    auto& box = sound.addComponent("Box");
    auto& lid = sound.addComponent("Lid");
    sound.root().addInstance(box);
    sound.root().addInstance(lid, moved(0, 0, 10));
    addBox(box, "Body").appearance = colour("#FF8000");
    addBox(lid, "Body").appearance = colour("#80FF00");
    box.bodies[0]->material = model::makeMaterial("Brass", 8500, colour("#C0A040"));
    write(sound, folder / "sound.stp");
  }

  EditedFile soundFile() const { return EditedFile(folder / "sound.stp"); }

  /// Empty when the file reads as the design that was written, else the message; "was read" when it reads otherwise.
  std::string outcomeOf(const EditedFile& edited) const {
    edited.save(folder / "edited.stp");
    try {
      return describe(*read(folder / "edited.stp")) == describe(sound) ? "" : "was read";
    } catch (const Error& error) {
      return error.what();
    }
  }

  const TemporaryFolder folder;
  model::Design sound{"Root"};
};

struct Damage {
  const char* name;
  /// The one place; its first group is the number of the entity that is to be named.
  const char* pattern;
  const char* replacement;
  const char* reason;
};

class DamagedEntities : public EditedDesign, public tests::WithRow<Damage> {};

TABLE(EntityCheck, DamagedEntities, tests::byName,
      {{"Point", "(#\\d+) = CARTESIAN_POINT", "$1 = CARTESIAN_PIONT", "unknown type CARTESIAN_PIONT"},
       {"PointOnSurface", "(#\\d+) = CARTESIAN_POINT(\\('',\\([^,]+,[^,]+\\)\\))", "$1 = PT$2", "unknown type PT"},
       {"Face", "(#\\d+) = ADVANCED_FACE", "$1 = FACE_ADVANCED", "unknown type FACE_ADVANCED"},
       {"Shell", "(#\\d+) = CLOSED_SHELL", "$1 = CLOSED_SHEL", "unknown type CLOSED_SHEL"},
       {"Solid", "(#\\d+) = MANIFOLD_SOLID_BREP", "$1 = MANIFOLD", "unknown type MANIFOLD"},
       {"Usage", "(#\\d+) = NEXT_ASSEMBLY_USAGE_OCCURRENCE", "$1 = NEXT_USAGE", "unknown type NEXT_USAGE"},
       {"Place", "(#\\d+) = CONTEXT_DEPENDENT_SHAPE_REPRESENTATION", "$1 = PLACED", "unknown type PLACED"},
       {"Shape", "(#\\d+) = SHAPE_DEFINITION_REPRESENTATION", "$1 = SHOWN", "unknown type SHOWN"},
       {"Product", "(#\\d+) = PRODUCT\\(", "$1 = PRODUKT(", "unknown type PRODUKT"},
       {"Unit", "(#\\d+) = \\( LENGTH_UNIT\\(\\) NAMED_UNIT", "$1 = ( LENGTH_UNIT() NAMED_UNITY",
        "unknown type LENGTH_UNIT NAMED_UNITY SI_UNIT"},
       {"Context", "(#\\d+) = \\( GEOMETRIC_REPRESENTATION_CONTEXT\\(3\\)", "$1 = ( GEOMETRIC_CONTEXT(3)",
        "unknown type GEOMETRIC_CONTEXT"},
       {"Style", "(#\\d+) = STYLED_ITEM", "$1 = STILED_ITEM", "unknown type STILED_ITEM"},
       {"Colour", "(#\\d+) = COLOUR_RGB", "$1 = COLOR_RGB", "unknown type COLOR_RGB"},
       {"Density", "(#\\d+) = MEASURE_REPRESENTATION_ITEM\\(([^,]*),[^,]*,#\\d+",
        "$1 = MEASURE_REPRESENTATION_ITEM($2,$$,$$", "unit_component"},
       {"NoShell", "(#\\d+) = MANIFOLD_SOLID_BREP\\('Body',#\\d+", "$1 = MANIFOLD_SOLID_BREP('Body',$$",
        "Parameter n0.2 (outer) not an Entity"},
       {"NoSolid", "(#\\d+) = ADVANCED_BREP_SHAPE_REPRESENTATION\\('',\\((#\\d+),#\\d+",
        "$1 = ADVANCED_BREP_SHAPE_REPRESENTATION('',($2,$$", "not an Entity"},
       {"NoPosition", "(#\\d+) = PLANE\\('',#\\d+", "$1 = PLANE('',$$", "Parameter n0.2 (position) not an Entity"},
       {"WrongKind", "(#\\d+) = CLOSED_SHELL\\('',\\(#\\d+", "$1 = CLOSED_SHELL('',(#2",
        "Parameter n0.1 (face) : Entity has illegal type"},
       {"InfiniteNumber", "(#\\d+) = CARTESIAN_POINT\\('',\\([^)]+\\)", "$1 = CARTESIAN_POINT('',(1.E999,0.,0.)",
        "1.E999"},
       {"HugeNumber", "(#\\d+) = VECTOR\\('',(#\\d+),[^)]+", "$1 = VECTOR('',$2,-1.E+300", "-1.E+300"}});

TABLE_TEST(DamagedEntities, AreNamedWithTheFileAndWhatHelps) {
  EditedFile edited = soundFile();
  const std::string number = edited.find(row().pattern);
  edited.replaceFirst(row().pattern, row().replacement);
  const std::string message = outcomeOf(edited);
  EXPECT_EQ(message.rfind("Cannot read \"" + (folder / "edited.stp").u8string() + "\"", 0), 0u) << message;
  EXPECT_NE(message.find("the file is damaged at " + number + " ("), std::string::npos) << number << ": " << message;
  EXPECT_NE(message.find(row().reason), std::string::npos) << message;
  EXPECT_NE(message.find("Copy or export it again."), std::string::npos) << message;
}

TEST_F(EditedDesign, IsNotReadWithoutAColourThoughNoListHoldsItsStyle) {
  EditedFile edited = soundFile();
  edited.replace("MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION", "REPRESENTATION");
  const std::string number = edited.find("(#\\d+) = COLOUR_RGB");
  edited.replaceFirst("= COLOUR_RGB", "= COLOR_RGB");
  const std::string message = outcomeOf(edited);
  EXPECT_NE(message.find("damaged at " + number + " (unknown type COLOR_RGB)"), std::string::npos) << message;
}

TEST_F(EditedDesign, IsNotReadWithoutAFace) {
  EditedFile edited = soundFile();
  const std::string face = edited.find("(#\\d+) = ADVANCED_FACE");
  edited.replaceFirst("= PLANE\\('',(#\\d+)", "= SPHERICAL_SURFACE('',$1,-1.");
  const std::string message = outcomeOf(edited);
  EXPECT_NE(message.find("no shape of " + face), std::string::npos) << message;
  EXPECT_NE(message.find("Export it again"), std::string::npos) << message;
}

TEST_F(EditedDesign, IsNotReadWithoutABody) {
  EditedFile edited = soundFile();
  const std::string solid = edited.find("(#\\d+) = MANIFOLD_SOLID_BREP");
  // An edge with a negative weight, over which the kernel gives up the whole body.
  edited.replaceFirst("= LINE\\('',(#\\d+),#\\d+\\)",
                      "= ( BOUNDED_CURVE() B_SPLINE_CURVE(1,($1,$1),.UNSPECIFIED.,.F.,.F.) "
                      "B_SPLINE_CURVE_WITH_KNOTS((2,2),(0.,1.),.UNSPECIFIED.) CURVE() GEOMETRIC_REPRESENTATION_ITEM() "
                      "RATIONAL_B_SPLINE_CURVE((1.,-1.)) REPRESENTATION_ITEM('') )");
  const std::string message = outcomeOf(edited);
  EXPECT_NE(message.find("no shape of " + solid + " ("), std::string::npos) << message;
}

TEST(ReferredFiles, AreCheckedBeforeTheyAreTranslated) {
  const TemporaryFolder folder;
  ForeignFile foreign;
  const auto root = foreign.addAssembly("Root");
  foreign.place(root, foreign.addPart("Part", box(10)), 20);
  foreign.writeSplit(folder / "whole.stp");
  EditedFile part(folder / "Part.stp");
  const std::string number = part.find("(#\\d+) = CARTESIAN_POINT");
  part.replaceFirst("= CARTESIAN_POINT", "= CARTESIAN_PIONT");
  part.save(folder / "Part.stp");
  try {
    read(folder / "whole.stp");
    FAIL() << "was read";
  } catch (const Error& error) {
    const std::string message = error.what();
    EXPECT_EQ(message.rfind("Cannot read \"" + (folder / "Part.stp").u8string() + "\"", 0), 0u) << message;
    EXPECT_NE(message.find("damaged at " + number + " (unknown type CARTESIAN_PIONT)"), std::string::npos) << message;
  }
}

struct Extra {
  const char* name;
  /// An entity that is added, if any, and an edit in which %1 stands for its number.
  const char* entity;
  const char* pattern;
  const char* replacement;
};

class UnknownEntities : public EditedDesign, public tests::WithRow<Extra> {};

TABLE(EntityCheck, UnknownEntities, tests::byName,
      {{"Alone", "VENDOR_NOTE('by hand')", "", ""},
       {"AboutAShape", "NAME_ATTRIBUTE('left',#4)", "", ""},
       {"BesideShapes", "VENDOR_TEXT('by hand',#11)", "SHAPE_REPRESENTATION\\('',\\(", "$&%1,"},
       {"BesideStyles", "VENDOR_TEXT('by hand',#11)", "PRESENTATION_REPRESENTATION\\('',\\(", "$&%1,"},
       {"BesideColours", "VENDOR_SHINE(0.5)", "SURFACE_SIDE_STYLE\\('',\\(", "$&%1,"},
       {"BesideSurfaces", "VENDOR_HATCH('cross')", "PRESENTATION_STYLE_ASSIGNMENT\\(\\(", "$&%1,"},
       {"NoTexts", "", "(ADVANCED_FACE|CLOSED_SHELL|PLANE|CARTESIAN_POINT)\\(''", "$1($$"}});

TABLE_TEST(UnknownEntities, AreNoReasonNotToRead) {
  EditedFile edited = soundFile();
  const std::string number = *row().entity != '\0' ? edited.add(row().entity) : "";
  if (*row().pattern != '\0') {
    edited.replace(row().pattern, std::regex_replace(std::string(row().replacement), std::regex("%1"), number));
  }
  EXPECT_EQ(outcomeOf(edited), "");
}

}  // namespace
}  // namespace headless::step
