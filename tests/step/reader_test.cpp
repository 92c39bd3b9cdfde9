// Reading real assemblies: what comes out of the files of other programs.
#include "host/step/reader.h"

#include <gtest/gtest.h>
#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

#include "host/model/resolution.h"
#include "host/step/error.h"
#include "host/step/shape.h"
#include "host/step/writer.h"
#include "tests/step/edited_file.h"
#include "tests/step/made_designs.h"
#include "tests/step/step_files.h"
#include "tests/support/tables.h"

namespace headless::step {
namespace {

struct Contents {
  std::size_t components = 0;
  std::size_t bodies = 0;
  std::size_t faces = 0;
  std::size_t occurrences = 0;
  std::size_t colouredBodies = 0;
  std::size_t colouredFaces = 0;
  std::size_t colours = 0;
  /// Of the structure, the root included; a part that stands alone in its file is below the root.
  std::size_t levels = 0;

  friend bool operator==(const Contents& a, const Contents& b) {
    return a.components == b.components && a.bodies == b.bodies && a.faces == b.faces &&
           a.occurrences == b.occurrences && a.colouredBodies == b.colouredBodies &&
           a.colouredFaces == b.colouredFaces && a.colours == b.colours && a.levels == b.levels;
  }
  friend std::ostream& operator<<(std::ostream& out, const Contents& c) {
    return out << c.components << " components, " << c.bodies << " bodies, " << c.faces << " faces, " << c.occurrences
               << " occurrences, " << c.colouredBodies << " coloured bodies, " << c.colouredFaces << " coloured faces, "
               << c.colours << " colours, " << c.levels << " levels";
  }
};

std::size_t levelsBelow(const std::vector<model::Occurrence*>& occurrences) {
  std::size_t deepest = 0;
  for (const model::Occurrence* occurrence : occurrences) {
    deepest = std::max(deepest, 1 + levelsBelow(occurrence->children));
  }
  return deepest;
}

Contents contentsOf(const model::Design& design) {
  Contents found;
  std::set<std::string> colours;
  found.components = design.components.size();
  found.occurrences = design.root().allOccurrences().size();
  for (const auto& component : design.components) {
    found.bodies += component->bodies.size();
    for (const auto& body : component->bodies) {
      found.faces += body->faces.size();
      if (body->appearance) {
        ++found.colouredBodies;
        colours.insert(model::hexText(body->appearance->colour));
      }
      for (const auto& face : body->faces) {
        if (face->appearance) {
          ++found.colouredFaces;
          colours.insert(model::hexText(face->appearance->colour));
        }
      }
    }
  }
  found.colours = colours.size();
  found.levels = 1 + levelsBelow(design.root().occurrences());
  return found;
}

/// Smallest and largest x, y, z of everything in its place, rounded to whole millimetres.
std::vector<long> boxOf(const model::Design& design) {
  Bnd_Box box;
  for (const model::Occurrence* occurrence : design.root().allOccurrences()) {
    TopLoc_Location place;
    for (const model::Occurrence* node = occurrence; node != nullptr; node = node->parent) {
      place = locationOf(node->instance->placement) * place;
    }
    for (const auto& body : occurrence->component().bodies) {
      BRepBndLib::AddOptimal(body->shape->geometry.Moved(place), box, false);
    }
  }
  const gp_Pnt low = box.CornerMin();
  const gp_Pnt high = box.CornerMax();
  return {std::lround(low.X()),  std::lround(low.Y()),  std::lround(low.Z()),
          std::lround(high.X()), std::lround(high.Y()), std::lround(high.Z())};
}

const model::Body& bodyOf(const model::Design& design, const std::string& component) {
  return *componentNamed(design, component).bodies.front();
}

struct FileCase {
  const char* file;
  const char* root;
  Contents contents;
};

class ReaderFiles : public ::testing::Test, public tests::WithRow<FileCase> {};

TABLE(Reader, ReaderFiles, [](const auto& row) { return std::string(row.file); },
      {{"as1-oc-214.stp", "as1", {9, 5, 53, 27, 5, 0, 5, 4}},
       {"as1-tu-203.stp", "as1", {9, 5, 53, 27, 5, 0, 5, 4}},
       {"dm1-id-214.stp", "dm1", {4, 3, 24, 7, 3, 0, 3, 2}},
       {"io1-cm-214.stp", "io1-cm-214", {2, 1, 29, 1, 1, 2, 2, 2}},
       {"red_cube_blue_cylinder.step", "red_cube_blue_cylinder", {3, 2, 9, 2, 0, 9, 2, 2}}});

TABLE_TEST(ReaderFiles, GiveTheirWholeContents) {
  WITH_STEP_FILE(path, row().file);
  const auto design = read(path);
  EXPECT_EQ(design->root().name, row().root);
  EXPECT_EQ(contentsOf(*design), row().contents);
}

TEST(Reader, ReadsAp242) {
  const TemporaryFolder folder;
  const auto design = makeMachine();
  componentNamed(*design, "Plate").bodies[0]->appearance = colour("#123456");
  write(*design, folder / "ap214.step");
  EditedFile file(folder / "ap214.step");
  file.replace(R"(FILE_SCHEMA\(\('AUTOMOTIVE_DESIGN[^']*'\)\);)",
               "FILE_SCHEMA(('AP242_MANAGED_MODEL_BASED_3D_ENGINEERING_MIM_LF { 1 0 10303 442 1 1 4 }'));");
  file.replace("'core data for automotive mechanical design processes'", "'managed model based 3d engineering'");
  file.replace(R"('automotive_design',\s*2000)", "'ap242_managed_model_based_3d_engineering',2011");
  file.save(folder / "ap242.step");
  EXPECT_EQ(describe(*read(folder / "ap242.step")), describe(*design));
}

TEST(Reader, NamesOccurrencesAfterTheirComponentsAndCountsThrough) {
  WITH_STEP_FILE(path, "as1-tu-203.stp");
  const auto design = read(path);
  std::vector<std::string> topLevel;
  for (const model::Occurrence* occurrence : design->root().occurrences()) {
    topLevel.push_back(occurrence->name());
  }
  EXPECT_EQ(topLevel,
            (std::vector<std::string>{"rod-assembly:1", "l-bracket-assembly:1", "plate:1", "l-bracket-assembly:2"}));
  EXPECT_NO_THROW(occurrenceAt(*design, "l-bracket-assembly:2+nut-bolt-assembly:3+nut:3"));
}

TEST(Reader, PlacesPartsWhetherMappedOrRelated) {
  for (const char* name : {"as1-tu-203.stp", "as1-oc-214.stp"}) {
    WITH_STEP_FILE(path, name);
    const auto design = read(path);
    EXPECT_EQ(boxOf(*design), (std::vector<long>{-10, 0, -4, 190, 150, 80})) << name;
  }
}

TEST(Reader, ConvertsToMillimetres) {
  WITH_STEP_FILE(path, "dm1-id-214.stp");
  const auto design = read(path);
  const model::Placement& second = design->root().instances[1]->placement;
  EXPECT_NEAR(second[3], 10.0551, 1e-3);
  EXPECT_NEAR(second[11], 65.0, 1e-3);
}

TEST(Reader, TakesRawMaterialsForMaterialsAndNotForParts) {
  WITH_STEP_FILE(path, "dm1-id-214.stp");
  const auto design = read(path);
  const std::map<std::string, std::pair<std::string, double>> expected{
      {"bolt", {"Greek Ascoloy", 7895}}, {"l-bracket", {"Titanium 6-4", 4432}}, {"nut", {"Inconel 718", 8228}}};
  for (const auto& [component, material] : expected) {
    const model::Body& body = bodyOf(*design, component);
    EXPECT_EQ(body.material->name, material.first) << component;
    ASSERT_NE(model::densityOf(*body.material), nullptr) << component;
    EXPECT_NEAR(*model::densityOf(*body.material), material.second, 0.6) << component;
  }
}

TEST(Reader, TakesMaterialsFromTheLookupAndDropsTheirColour) {
  WITH_STEP_FILE(path, "dm1-id-214.stp");
  const auto titanium = model::makeMaterial("Titanium 6-4", 4430, colour("#FF0000"));
  const auto inconel = model::makeMaterial("Inconel 718", 8190, colour("#00FF00"));
  const auto design = read(path, [&](const std::string& name) -> std::shared_ptr<const model::Material> {
    return name == "Titanium 6-4" ? titanium : name == "Inconel 718" ? inconel : nullptr;
  });
  EXPECT_EQ(bodyOf(*design, "l-bracket").material, titanium);
  EXPECT_EQ(bodyOf(*design, "l-bracket").appearance, nullptr) << "the body is red like its material";
  EXPECT_EQ(bodyOf(*design, "nut").material, inconel);
  EXPECT_NE(bodyOf(*design, "nut").appearance, nullptr) << "the body is orange, its material green";
  EXPECT_EQ(bodyOf(*design, "bolt").material->name, "Greek Ascoloy");
}

TEST(Reader, GivesFacesTheColourThatOverridesTheSolids) {
  WITH_STEP_FILE(path, "io1-cm-214.stp");
  const auto design = read(path);
  const model::Body& body = bodyOf(*design, "io1");
  EXPECT_EQ(model::hexText(body.appearance->colour), "#FFFF00");
  std::map<std::string, int> shown;
  for (const auto& face : body.faces) {
    ++shown[model::hexText(model::lookOf(*face, nullptr).appearance->colour)];
  }
  EXPECT_EQ(shown, (std::map<std::string, int>{{"#FF0000", 2}, {"#FFFF00", 27}}));
}

TEST(Reader, LeavesBodiesWithoutColourWhenOnlyFacesHaveOne) {
  WITH_STEP_FILE(path, "red_cube_blue_cylinder.step");
  const auto design = read(path);
  const model::Body& cube = bodyOf(*design, "red_cube");
  EXPECT_EQ(cube.appearance, nullptr);
  for (const auto& face : cube.faces) {
    EXPECT_EQ(model::hexText(face->appearance->colour), "#DD5228");
  }
}

TEST(Reader, NamesBodiesAsTheFileDoesUnlessThatIsNoName) {
  const std::vector<std::array<const char*, 3>> cases{{{"dm1-id-214.stp", "bolt", "R2"}},
                                                      {{"red_cube_blue_cylinder.step", "red_cube", "red_cube"}},
                                                      {{"as1-oc-214.stp", "bolt", "Body1"}},
                                                      {{"as1-tu-203.stp", "bolt", "Body1"}}};
  for (const auto& [file, component, body] : cases) {
    WITH_STEP_FILE(path, file);
    EXPECT_EQ(bodyOf(*read(path), component).name, body) << file;
  }
}

TEST(Reader, UsesOneAppearanceObjectForOneColour) {
  WITH_STEP_FILE(path, "red_cube_blue_cylinder.step");
  const auto design = read(path);
  std::set<const model::Appearance*> objects;
  for (const auto& component : design->components) {
    for (const auto& body : component->bodies) {
      for (const auto& face : body->faces) {
        objects.insert(face->appearance.get());
      }
    }
  }
  EXPECT_EQ(objects.size(), 2u);
}

TEST(Reader, ReadsALargeBoardWithAnOpenShell) {
  WITH_STEP_FILE(path, "motor-driver-board-v3.5.step");
  const auto design = read(path);
  EXPECT_EQ(contentsOf(*design), (Contents{254, 40, 687, 1413, 39, 153, 15, 6}));
  int shells = 0;
  int mostUses = 0;
  for (const auto& component : design->components) {
    if (component->bodies.empty()) {
      continue;
    }
    shells += component->bodies.front()->shape->geometry.ShapeType() == TopAbs_SHELL ? 1 : 0;
    const auto& all = design->root().allOccurrences();
    const auto uses = std::count_if(
        all.begin(), all.end(), [&](const auto* occurrence) { return &occurrence->component() == component.get(); });
    mostUses = component->name == "RES_0603_(1608_metric)" ? static_cast<int>(uses) : mostUses;
  }
  EXPECT_EQ(shells, 1);
  EXPECT_EQ(mostUses, 53);
}

TEST(Reader, TellsHowFarItGot) {
  WITH_STEP_FILE(path, "as1-tu-203.stp");
  std::vector<std::pair<std::string, double>> told;
  read(path, {}, [&](const std::string& phase, double fraction) { told.emplace_back(phase, fraction); });
  ASSERT_GE(told.size(), 4u);
  EXPECT_EQ(told.front(), std::make_pair(std::string("reading"), 0.0));
  EXPECT_EQ(told.back(), std::make_pair(std::string("translating"), 1.0));
  EXPECT_NE(std::find(told.begin(), told.end(), std::make_pair(std::string("reading"), 1.0)), told.end());
  EXPECT_NE(std::find(told.begin(), told.end(), std::make_pair(std::string("translating"), 0.0)), told.end());
}

TEST(Reader, SaysNothingOnTheConsole) {
  WITH_STEP_FILE(path, "as1-tu-203.stp");
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  read(path);
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

struct BadFile {
  const char* title;
  const char* content;
  const char* reason;
};

#define STEP_HEADER                                                                               \
  "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n" \
  "FILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n"
#define STEP_END "ENDSEC;\nEND-ISO-10303-21;\n"

class ReaderErrors : public ::testing::Test, public tests::WithRow<BadFile> {};

TABLE(Reader, ReaderErrors, [](const auto& row) { return row.title; },
      {{"Empty", "", "the file is empty"},
       {"Text", "solid cube\n", "this is not a STEP file"},
       {"Truncated", STEP_HEADER "#1=CARTESIAN_POINT('',(0.,0.,", "the file ends early"},
       {"Nothing", "ISO-10303-21;\nEND-ISO-10303-21;\n", "the file is damaged"},
       {"Syntax", STEP_HEADER "#1=CARTESIAN_POINT('',((;\n" STEP_END, "the file is damaged"},
       {"Reference", STEP_HEADER "#1=VERTEX_POINT('',#2);\n" STEP_END, "Unresolved Reference"},
       {"NoShapes", STEP_HEADER "#1=CARTESIAN_POINT('',(0.,0.,0.));\n" STEP_END,
        "it holds no shapes (schema: AUTOMOTIVE_DESIGN)"}});

TABLE_TEST(ReaderErrors, NameTheFileAndTheReason) {
  const TemporaryFolder folder;
  const auto file = folder / "bad.stp";
  fillFile(file, row().content);
  try {
    read(file);
    FAIL() << "was read";
  } catch (const Error& error) {
    const std::string message = error.what();
    EXPECT_NE(message.find("\"" + file.u8string() + "\""), std::string::npos) << message;
    EXPECT_NE(message.find(row().reason), std::string::npos) << message;
  }
}

TEST(Reader, SaysWhenThereIsNoFile) {
  const TemporaryFolder folder;
  EXPECT_THROW(read(folder / "none.stp"), Error);
  EXPECT_THROW(read(folder.path()), Error);
}

}  // namespace
}  // namespace headless::step
