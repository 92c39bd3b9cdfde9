#include "library_builder/messages.h"

#include <string>

#include "library_builder/ral_table.h"

namespace library_builder {

namespace core = adsk::core;
using core::Ptr;

namespace {

std::string total() {
  return std::to_string(ralColours().size());
}

/// Such as "100 of 216 RAL appearances are in the design: 60 made now, 40 there before."
std::string countsOf(const Tally& tally) {
  std::string text = std::to_string(tally.made + tally.wereThere) + " of " + total() +
                     " RAL appearances are in the design: " + std::to_string(tally.made) + " made now, " +
                     std::to_string(tally.wereThere) + " there before.";
  if (tally.withOtherGloss > 0) {
    text += " The gloss of " + std::to_string(tally.withOtherGloss) +
            " could not be set; it is that of the base appearance.";
  }
  return text;
}

// The way to the library, in the words of the user guide, which tells more about each step. It was taken from
// documentation: the material browser makes user libraries; which buttons it has for that is not known.
constexpr const char* stepOpen = "Choose Manage Materials in the menu Modify: the material browser opens.";
constexpr const char* stepMake =
    "Make a new user library in the material browser and name it exactly RAL_COLORS, in capitals.";
constexpr const char* stepFill = "Put all RAL appearances of the design into it.";
constexpr const char* stepCopy =
    "The library is a file RAL_COLORS.adsklib. Copy it into the add-in's folder resources\\Libs\\Appearances.";
constexpr const char* stepClose = "Close the design that the script made, without saving.";

std::string wayToTheLibrary() {
  std::string text = "To offer them in Tintora:";
  int number = 0;
  for (const char* step : {stepOpen, stepMake, stepFill, stepCopy, stepClose}) {
    text += "\n" + std::to_string(++number) + ". " + step;
  }
  return text +
         "\n\nThe add-in's folder is the one in which Tintora.dll lies, usually "
         "%APPDATA%\\Autodesk\\Autodesk Fusion 360\\API\\AddIns\\Tintora or, for the bundle, "
         "%APPDATA%\\Autodesk\\ApplicationPlugins\\Tintora.bundle\\Contents. The user guide says more.";
}

}  // namespace

core::DialogResults askWhetherToGoOn(const Ptr<core::UserInterface>& ui, const std::string& designName,
                                     std::size_t present) {
  return ui->messageBox("The open design \"" + designName + "\" holds " + std::to_string(present) + " of the " +
                            total() +
                            " RAL appearances.\n\nYes: add the missing ones to it.\nNo: make all of them in a new "
                            "design.",
                        messageTitle, core::YesNoCancelButtonType, core::QuestionIconType);
}

void tellCompletion(const Ptr<core::UserInterface>& ui, const Tally& tally) {
  ui->messageBox(countsOf(tally) + "\n\n" + wayToTheLibrary(), messageTitle, core::OKButtonType,
                 core::InformationIconType);
}

void tellCancellation(const Ptr<core::UserInterface>& ui, const Tally& tally) {
  ui->messageBox("Cancelled. " + countsOf(tally) +
                     " They stay.\n\nTo make the missing ones, run the library builder again while this design is open "
                     "and answer Yes.",
                 messageTitle, core::OKButtonType, core::InformationIconType);
}

void tellFailure(const Ptr<core::UserInterface>& ui, const Failure& failure, const Tally& tally) {
  const bool isAnythingThere = tally.made + tally.wereThere > 0;
  ui->messageBox(
      failure.what() + std::string("\n\n") + (isAnythingThere ? countsOf(tally) + "\n\n" : "") + failure.advice(),
      messageTitle, core::OKButtonType, core::CriticalIconType);
}

}  // namespace library_builder
