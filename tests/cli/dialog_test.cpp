#include "tests/cli/cli_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

TEST_F(CliTest, DialogAsBuilt) {
  EXPECT_EQ(succeed({"dialog", rig()}),
            "┌─ Tintora ──────────────────────────────────────────────────────────────────┐\n"
            "│ ▾ Select Component/Body/Face                                               │\n"
            "│   Select Object           < Select Body >  nothing picked                  │\n"
            "│   Selection Filter         Component  [Body]  Face                         │\n"
            "│ ▾ [x] Assign Appearance to Selected Object                                 │\n"
            "│   Selection Appearance                                                     │\n"
            "│   Library of Appearances  [ RAL_COLORS                    ▼]  1 of 1       │\n"
            "│   Appearance              [ RAL 1000 Green beige          ▼]  1 of 216     │\n"
            "│                             > RAL 1000 Green beige                         │\n"
            "│                               RAL 1001 Beige                               │\n"
            "│                               RAL 1002 Sand yellow                         │\n"
            "│   Filter                  [                                ]               │\n"
            "│   ( RemoveAppearance ) (greyed out)                                        │\n"
            "│ ▾ [x] Assign Material to Selected Object                                   │\n"
            "│   Selection material                                                       │\n"
            "│   [ ] Set Appearance by Material                                           │\n"
            "│   Library of Materials    [ Engineering materials         ▼]  1 of 1       │\n"
            "│   Material                [ Steel S235JR                  ▼]  1 of 74      │\n"
            "│                             > Steel S235JR                                 │\n"
            "│                               Steel AISI 1020                              │\n"
            "│                               Steel AISI 1045                              │\n"
            "│   Filter                  [                                ]               │\n"
            "│ ( BtnApply ) (greyed out)                                                  │\n"
            "├────────────────────────────────────────────────────────────────────────────┤\n"
            "│                                                                  [ Close ] │\n"
            "└────────────────────────────────────────────────────────────────────────────┘\n");
}

TEST_F(CliTest, DialogWithSomethingPickedSaysWhatItShows) {
  const std::string dialog = succeed({"dialog", rig(), "--filter", "face", "--select", "*/Shaft/Face2"});
  EXPECT_THAT(dialog, AllOf(HasSubstr("< Select Face >  2 picked"), HasSubstr("- Arm:1+Pin:1/Shaft/Face2 "),
                            HasSubstr("Opaque(0,0,255) - overriden appearance."),
                            HasSubstr("Physical material: Steel;  Density: 7850 kg.m-3")));
  EXPECT_THAT(dialog, Not(HasSubstr("greyed out")));
}

struct BracketsCase {
  const char* name;
  std::vector<std::string> patterns;
  const char* picked;
};

class PatternInBrackets : public CliTest, public WithRow<BracketsCase> {};

TABLE(Patterns, PatternInBrackets, byName,
      {{"FromSetToSet", {"[B]as[e]"}, "1 picked"},
       {"WithCommas", {"[B,C]as[d,e]"}, "1 picked"},
       {"AmongOthers", {"Arm:1/Beam", "[B]as[e]", "Arm:[2]/Bea[m]"}, "3 picked"}});

TABLE_TEST(PatternInBrackets, IsOnePattern) {
  std::vector<std::string> arguments = {"dialog", rig(), "--filter", "body", "--select"};
  arguments.insert(arguments.end(), row().patterns.begin(), row().patterns.end());
  EXPECT_THAT(succeed(arguments), HasSubstr(row().picked));
}

class PatternOfBracketsAlone : public CliTest, public WithRow<const char*> {};

TABLE(Patterns, PatternOfBracketsAlone, byNumber, {"[]", "{}"});

TABLE_TEST(PatternOfBracketsAlone, IsAPatternAsWell) {
  EXPECT_THAT(fail(1, {"dialog", rig(), "--filter", "body", "--select", row(), "--profile", "lenient"}),
              HasSubstr("no body of Rig matches \"" + std::string(row()) + "\""));
}

class DialogUnderProfile : public CliTest, public WithRow<const char*> {};

TABLE(Profiles, DialogUnderProfile, byText, {"lenient", "documented", "hostile"});

TABLE_TEST(DialogUnderProfile, ShowsThePickedObjects) {
  EXPECT_THAT(succeed({"dialog", rig(), "--filter", "body", "--select", "*", "--profile", row()}),
              AllOf(HasSubstr("5 picked"), HasSubstr("and 1 more"), HasSubstr("Various")));
}

TEST_F(CliTest, DialogIsFilledInAsAskedFor) {
  const std::string dialog = succeed({"dialog", rig(), "--close", "appearance", "--material-filter", "stainless",
                                      "--material", "Stainless Steel AISI 316", "--set-appearance-by-material"});
  EXPECT_THAT(dialog, AllOf(HasSubstr("▸ [ ] Assign Appearance to Selected Object"), HasSubstr("[ stainless"),
                            HasSubstr("[ Stainless Steel AISI 316"), HasSubstr("[x] Set Appearance by Material"),
                            Not(HasSubstr("Brass"))));
  EXPECT_THAT(succeed({"dialog", rig(), "--appearance-filter", "ral 30", "--appearance", "RAL 3003 Ruby red"}),
              AllOf(HasSubstr("[ ral 30"), HasSubstr("[ RAL 3003 Ruby red")));
}

TEST_F(CliTest, AnItemThatTheFilterHidesCannotBeChosen) {
  EXPECT_THAT(
      fail(1, {"dialog", rig(), "--appearance-filter", "ral 50", "--appearance", "RAL 3003 Ruby red"}),
      HasSubstr(": under the filter \"ral 50\" the library RAL_COLORS has no appearance \"RAL 3003 Ruby red\"; "));
  EXPECT_THAT(
      fail(1, {"dialog", rig(), "--material-filter", "zzz", "--material", "Lead"}),
      HasSubstr(": under the filter \"zzz\" the library Engineering materials has no material \"Lead\"; the list "
                "is empty\n"));
}

TEST_F(CliTest, DialogIsDrawnWithTheColoursOfTheLibrary) {
  succeed({"dialog", rig(), "--picture", at("dialog.svg"), "--appearance-filter", "ral 30", "--open-list", "appearance",
           "--filter", "face", "--select", "*/Shaft/Face2"});
  const std::string picture = content("dialog.svg");
  for (const char* label :
       {">Select Component/Body/Face<", ">Select Object<", ">Selection Filter<",
        ">Assign Appearance to Selected Object<", ">Selection Appearance<", ">Library of Appearances<", ">Appearance<",
        ">Filter<", ">Assign Material to Selected Object<", ">Selection material<", ">Set Appearance by Material<",
        ">Library of Materials<", ">Material<", ">Close<", "<title>idRemoveAssignAppearance<", "<title>idBtnApply<"}) {
    EXPECT_THAT(picture, HasSubstr(label));
  }
  EXPECT_THAT(picture, AllOf(HasSubstr(">2 selected<"), HasSubstr(">ral 30<"), HasSubstr(">RAL 3000 Flame red<"),
                             HasSubstr("fill=\"#A72920\""), HasSubstr("font-weight=\"bold\">Opaque(0,0,255)<"),
                             HasSubstr("Steel</tspan>")));
  EXPECT_THAT(picture, Not(HasSubstr("RAL 1000")));
}

TEST_F(CliTest, ToolbarIsDrawn) {
  succeed({"dialog", rig(), "--toolbar-picture", at("toolbar.svg")});
  EXPECT_THAT(content("toolbar.svg"), AllOf(HasSubstr(">QV Tools<"), HasSubstr("<title>Open Help<")));
}

TEST_F(CliTest, ALibraryThatCannotBeReadIsNamedWhenTheDialogDoesNotOpen) {
  const std::filesystem::path addIn = at("addin");
  std::filesystem::create_directories(addIn / "resources/Libs/Appearances");
  std::filesystem::create_directories(addIn / "resources/Libs/Materials");
  std::filesystem::copy_file(TINTORA_MODULE, addIn / "Tintora.dll");
  fill("addin/resources/Libs/Appearances/RAL_COLORS.adsklib", "{\"format\": \"other\"}");
  EXPECT_THAT(fail(1, {"dialog", rig(), "--addin", addIn.string()}),
              AllOf(HasSubstr("while the dialog was being built"), HasSubstr("commandCreated"),
                    HasSubstr("not loaded: "), HasSubstr("RAL_COLORS.adsklib")));
}

}  // namespace
}  // namespace tests
