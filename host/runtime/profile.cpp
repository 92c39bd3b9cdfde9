#include "host/runtime/profile.h"

#include <stdexcept>

namespace headless {

Profile lenientProfile() {
  Profile profile;
  profile.name = "lenient";
  profile.libraryPathText = LibraryPathText::CodePage;
  profile.editClearsSelection = EditClearsSelection::Never;
  profile.executeFromTerminated = ExecuteFromTerminated::AtOnce;
  return profile;
}

Profile documentedProfile() {
  return {};
}

Profile hostileProfile() {
  Profile profile;
  profile.name = "hostile";
  profile.echo = Echo::AtOnce;
  profile.echoWhileBuilding = true;
  profile.unchangedValuesReported = true;
  profile.clearSelectionReported = true;
  profile.executeClearsSelection = true;
  profile.clickRaisesTwoEvents = true;
  profile.executeInDialog = ExecuteInDialog::EndsCommand;
  profile.cancelledChanges = CancelledChanges::Kept;
  profile.eventGivesGroupInputs = true;
  profile.libraryAppearance = LibraryAppearance::Copied;
  profile.coloursRounded = true;
  profile.freshWrappers = true;
  profile.hiddenTickIgnored = true;
  profile.tickExpandsGroup = true;
  profile.preselectionUsed = true;
  profile.editClearsSelection = EditClearsSelection::AtOnce;
  return profile;
}

Profile profileNamed(std::string_view name) {
  for (const Profile& profile : {lenientProfile(), documentedProfile(), hostileProfile()}) {
    if (profile.name == name) {
      return profile;
    }
  }
  throw std::invalid_argument("no host profile is named \"" + std::string(name) +
                              "\"; there are lenient, documented and hostile");
}

std::vector<std::string> profileNames() {
  return {"lenient", "documented", "hostile"};
}

}  // namespace headless
