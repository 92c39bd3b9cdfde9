#include "host/cli/demo.h"

#include <filesystem>
#include <fstream>
#include <iostream>

#include "host/cli/dialog_ids.h"
#include "host/cli/dialog_text.h"
#include "host/cli/dialog_work.h"
#include "host/cli/text_layout.h"
#include "host/cli/tree_text.h"
#include "host/win32/desktop.h"

namespace headless::cli {

namespace fs = std::filesystem;

namespace {

const Picks brackets = {PickKind::Body, {"*+l-bracket:*/*"}};
const Picks bracketsAndPlate = {PickKind::Body, {"*+l-bracket:*/*", "plate:1/*"}};
const Picks plate = {PickKind::Body, {"plate:1/*"}};
const Picks bolts = {PickKind::Body, {"*+bolt:*/*"}};
const Picks rodAssembly = {PickKind::Component, {"rod-assembly:1"}};

constexpr const char* red = "RAL 3000 Flame red";
constexpr const char* blue = "RAL 5015 Sky blue";
constexpr const char* steel = "Steel S235JR";
constexpr const char* usersGuide = "Tintora_UsersGuide.pdf";
constexpr const char* brass = "Brass C26000";

/// Tells the steps, one function each.
class Demo {
 public:
  explicit Demo(Sitting& demoSitting) : sitting(demoSitting), session(demoSitting.session()) {}

  void showToolbar() {
    heading("The add-in is loaded and puts its buttons into the toolbar");
    sitting.startAddIn();
    std::cout << toolbarText(session.toolbar());
  }

  void openDialog() {
    heading("The button \"Tintora\" opens the dialog");
    sitting.openDialog();
    std::cout << dialogText(session.dialog());
  }

  void pickBrackets() {
    heading("The bodies of both l-brackets are picked; the dialog says what they show and what they are made of");
    pick(brackets);
    show({ids::selectionGroup, ids::appearanceText, ids::removeButton, ids::materialText, ids::applyButton});
  }

  void typeFilter() {
    heading("\"ral 30\" is typed into the filter of the appearances");
    session.type(ids::appearanceFilter, "ral 30");
    show({ids::appearanceLibraries, ids::appearances, ids::appearanceFilter});
  }

  void applyColourAndSteel() {
    heading(std::string("Apply with \"") + red + "\" and \"" + steel + "\"");
    session.choose(ids::appearances, red);
    session.choose(ids::materials, steel);
    show({ids::appearances, ids::materials, ids::applyButton});
    session.click(ids::applyButton);
    say("The brackets are made of steel now. Their own green is back on them: with a material, and without \"Set "
        "Appearance by Material\", the add-in keeps the looks that were applied before.");
    showTexts(brackets);
  }

  void applyColourAlone() {
    heading("The material's group is closed, and Apply gives them the colour alone");
    session.expand(ids::materialGroup, false);
    session.choose(ids::appearances, red);
    session.click(ids::applyButton);
    showTexts(brackets);
  }

  void paintOccurrence() {
    heading("A whole component is painted; its bodies have colours of their own, so the add-in asks about them");
    session.expand(ids::materialGroup, false);
    session.type(ids::appearanceFilter, "");
    session.choose(ids::appearances, blue);
    pick(rodAssembly);
    session.answerAlways(adsk::core::DialogYes);
    session.click(ids::applyButton);
    for (const MessageBox& box : session.messageBoxes()) {
      std::cout << messageBoxText(box);
    }
    showTexts(rodAssembly);
  }

  void showVarious() {
    heading("Brackets and plate together: their texts differ");
    showTexts(bracketsAndPlate);
  }

  void applyBrass() {
    heading("The plate becomes brass, at first without \"Set Appearance by Material\": it keeps its yellow");
    applyMaterial(false);
    showTexts(plate);
    heading("The same with \"Set Appearance by Material\": the plate shows the brass");
    applyMaterial(true);
    showTexts(plate);
  }

  void undo() {
    heading("Every Apply is one step: undo gives the yellow back");
    session.undo();
    showTexts(plate);
    say("And redo takes it away again.");
    session.redo();
    showTexts(plate);
  }

  void removeAppearances() {
    heading(
        "The bolts have a colour of their own, so the remove button can be pressed: they show their material again");
    session.expand(ids::appearanceGroup, true);
    showTexts(bolts);
    session.click(ids::removeButton);
    showTexts(bolts);
  }

  void openHelp() {
    heading("The help button opens the user's guide");
    session.press(ids::helpButton);
    if (!fs::exists(sitting.addIn().folder() / usersGuide)) {
      say(std::string(usersGuide) + " is not in the add-in's folder, so nothing opens.");
    }
    for (const std::string& file : desktop::openedFiles()) {
      std::cout << "Opened with the program for such files: " << fs::u8path(file).filename().u8string() << "\n";
    }
  }

  void startAgain() {
    heading("The add-in is unloaded and loaded again: the dialog opens as it was last used");
    sitting.closeDialog();
    sitting.stopAddIn();
    showSettings();
    sitting.startAddIn();
    sitting.openDialog();
    std::cout << dialogText(session.dialog());
    sitting.closeDialog();
    sitting.stopAddIn();
  }

  void showTree(bool withColours) {
    heading("The assembly now");
    std::cout << treeText(treeOf(session.design(), TreeDetail::Grouped), withColours);
  }

 private:
  void heading(const std::string& text) {
    std::cout << "\n";
    say(std::to_string(++headings) + ". " + text);
    std::cout << "\n";
  }

  static void say(const std::string& text) {
    for (const std::string& line : wrapped(text, DialogTextStyle().columns)) {
      std::cout << line << "\n";
    }
  }

  void pick(const Picks& picks) { pickInDialog(sitting, picks); }

  void show(const std::vector<std::string>& inputIds) { std::cout << dialogExcerpt(session.dialog(), inputIds); }

  // What the dialog says about objects. The groups are opened for that, as the texts are in them.
  void showTexts(const Picks& picks) {
    session.expand(ids::appearanceGroup, true);
    session.expand(ids::materialGroup, true);
    pick(picks);
    show({ids::selection, ids::appearanceText, ids::removeButton, ids::materialText});
  }

  void showSettings() {
    for (const auto& entry : fs::directory_iterator(sitting.addIn().folder())) {
      const std::string name = entry.path().filename().u8string();
      if (name.find("_CmdSet.txt") == std::string::npos) {
        continue;
      }
      std::cout << name << ":\n";
      std::ifstream file(entry.path());
      for (std::string line; std::getline(file, line);) {
        std::cout << "  " << line << "\n";
      }
    }
  }

  void applyMaterial(bool setsAppearance) {
    session.expand(ids::appearanceGroup, false);
    session.expand(ids::materialGroup, true);
    session.tick(ids::appearanceByMaterial, setsAppearance);
    pick(plate);
    session.choose(ids::materials, brass);
    session.click(ids::applyButton);
  }

  Sitting& sitting;
  Session& session;
  int headings = 0;
};

}  // namespace

void playDemo(Sitting& sitting, const OutputFiles& outputs, bool withColours) {
  Demo demo(sitting);
  demo.showToolbar();
  demo.openDialog();
  demo.pickBrackets();
  demo.typeFilter();
  demo.applyColourAndSteel();
  demo.applyColourAlone();
  demo.paintOccurrence();
  demo.showVarious();
  demo.applyBrass();
  demo.undo();
  demo.removeAppearances();
  demo.openHelp();
  demo.startAgain();
  demo.showTree(withColours);
  std::cout << "\n";
  sitting.finish();
  writeOutputs(sitting.session().design(), outputs, sitting.progress());
}

}  // namespace headless::cli
