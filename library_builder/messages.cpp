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

std::string waysToTheLibrary() {
  const std::string name = libraryName;
  return "To offer them in Tintora:\n"
         "1. In the material browser, make a new user library named " +
         name + ". Its file belongs into the folder of the Tintora add-in, as " + libraryFile +
         " (that folder is usually %APPDATA%\\Autodesk\\Autodesk Fusion 360\\API\\AddIns\\Tintora).\n"
         "2. Add the RAL appearances of this design to that library, by way of the favourites where the browser wants "
         "it so.\n"
         "3. Open the Tintora dialog: it lists " +
         name + " among the appearance libraries.\n\nThe design is not needed after that.";
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
  ui->messageBox(countsOf(tally) + "\n\n" + waysToTheLibrary(), messageTitle, core::OKButtonType,
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
