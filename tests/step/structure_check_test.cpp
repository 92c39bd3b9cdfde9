// Assemblies that no geometry kernel survives.
#include "host/step/structure_check.h"

#include <gtest/gtest.h>

#include <string>

#include "host/step/error.h"
#include "host/step/kernel_session.h"
#include "host/step/reader.h"
#include "host/step/writer.h"
#include "tests/step/edited_file.h"
#include "tests/step/made_designs.h"

namespace headless::step {
namespace {

/// A file of products called "Level 1" and so on, each used by the one before, and its end used by `closing` if not 0.
std::string chainFile(int products, int closing) {
  std::string text =
      "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
      "FILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n"
      "#1=APPLICATION_CONTEXT('automotive design');\n#2=PRODUCT_CONTEXT('',#1,'mechanical');\n"
      "#3=PRODUCT_DEFINITION_CONTEXT('part definition',#1,'design');\n";
  const auto id = [](int product, int offset) { return "#" + std::to_string(10 * product + offset); };
  for (int i = 1; i <= products; ++i) {
    const std::string name = "'Level " + std::to_string(i) + "'";
    text += id(i, 0) + "=PRODUCT(" + name + "," + name + ",'',(#2));\n";
    text += id(i, 1) + "=PRODUCT_DEFINITION_FORMATION('',''," + id(i, 0) + ");\n";
    text += id(i, 2) + "=PRODUCT_DEFINITION('design',''," + id(i, 1) + ",#3);\n";
    if (i > 1) {
      text += id(i, 3) + "=NEXT_ASSEMBLY_USAGE_OCCURRENCE('','',''," + id(i - 1, 2) + "," + id(i, 2) + ",$);\n";
    }
  }
  if (closing > 0) {
    text += id(products, 4) + "=NEXT_ASSEMBLY_USAGE_OCCURRENCE('','',''," + id(products, 2) + "," + id(closing, 2) +
            ",$);\n";
  }
  return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

std::string messageOfReading(const std::string& content) {
  const TemporaryFolder folder;
  fillFile(folder / "chain.stp", content);
  try {
    read(folder / "chain.stp");
  } catch (const Error& error) {
    return error.what();
  }
  return "was read";
}

TEST(StructureCheck, FindsProductsThatContainThemselves) {
  for (const int products : {1, 2, 5}) {
    const std::string message = messageOfReading(chainFile(products, 1));
    EXPECT_NE(message.find("product \"Level "), std::string::npos) << message;
    EXPECT_NE(message.find("\" contains itself"), std::string::npos) << message;
  }
}

/// A sound file of Root, which uses Middle, which uses Part; open for edits.
EditedFile soundFile(const TemporaryFolder& folder) {
  model::Design design("Root");
  auto& middle = design.addComponent("Middle");
  auto& part = design.addComponent("Part");
  design.root().addInstance(middle);
  middle.addInstance(part);
  addBox(part, "Body");
  write(design, folder / "sound.stp");
  return EditedFile(folder / "sound.stp");
}

TEST(StructureCheck, FindsCirclesOfPlacements) {
  const TemporaryFolder folder;
  EditedFile edited = soundFile(folder);
  const std::string root = edited.find("REPRESENTATION_RELATIONSHIP\\('','',#\\d+,(#\\d+)\\)", 0);
  const std::string part = edited.find("REPRESENTATION_RELATIONSHIP\\('','',(#\\d+),#\\d+\\)", 1);
  edited.replace("(REPRESENTATION_RELATIONSHIP\\('','',)" + part + ",", "$1" + root + ",");
  edited.save(folder / "circle.stp");
  const std::string message = messageOfReading(contentOf(folder / "circle.stp"));
  EXPECT_NE(message.find("contains itself"), std::string::npos) << message;
}

TEST(StructureCheck, FindsCirclesOfMappedItems) {
  const TemporaryFolder folder;
  EditedFile edited = soundFile(folder);
  const std::string shape = edited.find("(#\\d+) = ADVANCED_BREP_SHAPE_REPRESENTATION");
  const std::string origin = edited.find("ADVANCED_BREP_SHAPE_REPRESENTATION\\('',\\((#\\d+)");
  const std::string map = edited.add("REPRESENTATION_MAP(" + origin + "," + shape + ")");
  const std::string item = edited.add("MAPPED_ITEM(''," + map + "," + origin + ")");
  edited.replace("(ADVANCED_BREP_SHAPE_REPRESENTATION\\('',\\()", "$1" + item + ",");
  edited.save(folder / "circle.stp");
  const std::string message = messageOfReading(contentOf(folder / "circle.stp"));
  EXPECT_NE(message.find("a representation contains itself"), std::string::npos) << message;
}

TEST(StructureCheck, RefusesBottomlessAssemblies) {
  const std::string message = messageOfReading(chainFile(deepestNesting + 1, 0));
  EXPECT_NE(message.find(std::to_string(deepestNesting + 1) + " levels deep"), std::string::npos) << message;
}

TEST(StructureCheck, AcceptsDeepAssemblies) {
  const std::string message = messageOfReading(chainFile(deepestNesting, 0));
  EXPECT_NE(message.find("it holds no shapes"), std::string::npos) << message;
}

TEST(StructureCheck, KeepsWritersFromBottomlessDesigns) {
  const TemporaryFolder folder;
  for (const int levels : {300, deepestNesting + 1}) {
    model::Design design("Root");
    model::Component* user = &design.root();
    for (int level = 0; level < levels; ++level) {
      auto& used = design.addComponent("Level");
      user->addInstance(used);
      user = &used;
    }
    addBox(*user, "Box");
    if (levels > deepestNesting) {
      EXPECT_THROW(write(design, folder / "deep.stp"), Error);
    } else {
      write(design, folder / "deep.stp");
      EXPECT_EQ(describe(*read(folder / "deep.stp")), describe(design));
    }
  }
}

}  // namespace
}  // namespace headless::step
