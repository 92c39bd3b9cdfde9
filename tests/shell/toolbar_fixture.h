// What the tests of the toolbar's registration and removal have in common.
#pragma once

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {

inline constexpr const char* workspaceId = "FusionSolidEnvironment";
inline constexpr const char* solidPanel = "id_QV_Tools_Tnt";
inline constexpr const char* toolsPanel = "id_QV_Tools_TntOnTools";

/// How much of the add-in's user interface is there.
struct Registered {
  std::size_t panels = 0;
  std::size_t definitions = 0;
  std::size_t buttons = 0;
  std::size_t createdHandlers = 0;
  std::size_t terminatedHandlers = 0;

  bool operator==(const Registered& other) const {
    return panels == other.panels && definitions == other.definitions && buttons == other.buttons &&
           createdHandlers == other.createdHandlers && terminatedHandlers == other.terminatedHandlers;
  }
};

inline std::ostream& operator<<(std::ostream& stream, const Registered& registered) {
  return stream << registered.panels << " panels, " << registered.definitions << " definitions, " << registered.buttons
                << " buttons, " << registered.createdHandlers << " created handlers, " << registered.terminatedHandlers
                << " terminated handlers";
}

inline constexpr Registered everything = {2, 4, 4, 4, 1};

/// Tests of what is on the toolbar.
class Toolbar : public AddInTest {
 protected:
  headless::WorkspaceObject& workspace() { return *host().ui().workspaceList().find(workspaceId); }

  Registered registered() {
    Registered found;
    if (host().ui().workspaceList().find(workspaceId) != nullptr) {
      found.panels = workspace().panels().size();
    }
    for (const auto& definition : host().ui().definitions().all()) {
      if (!definition->isNative()) {
        ++found.definitions;
        found.createdHandlers += definition->createdEvent().handlerCount();
      }
    }
    found.buttons = session().toolbar().size();
    found.terminatedHandlers = host().ui().terminatedHandlerCount();
    return found;
  }

  std::vector<std::string> buttonsOn(const std::string& panelId) {
    std::vector<std::string> ids;
    for (const headless::ButtonView& button : session().toolbar()) {
      if (button.panelId == panelId) {
        ids.push_back(button.id);
      }
    }
    return ids;
  }
};

/// How an entry point ends.
enum class Ending { True, False, Raises };

/// One call of `run` or `stop` to which the host answers with nothing.
struct Refusal {
  std::string call;
  std::size_t nth;
  Ending ending;
  Registered left;
};

inline std::ostream& operator<<(std::ostream& stream, const Refusal& refusal) {
  return stream << refusal.call << " number " << refusal.nth;
}

inline std::string nameOf(const Refusal& refusal) {
  std::string name = refusal.call + std::to_string(refusal.nth);
  name.erase(std::remove_if(name.begin(), name.end(), [](char letter) { return letter == '.' || letter == '='; }),
             name.end());
  return name;
}

/// Tests of one refused call.
class RefusedCall : public Toolbar, public WithRow<Refusal> {
 protected:
  void refuse() { host().gate().setFault({row().nth, headless::FaultAnswer::Nothing, row().call}); }

  /// `answer` is what the entry point answered; false when it raised.
  void expectEnding(bool answer) {
    EXPECT_TRUE(host().gate().faultStruck());
    EXPECT_EQ(answer, row().ending == Ending::True);
    if (row().ending == Ending::Raises) {
      EXPECT_THAT(takeErrorKinds(), ::testing::ElementsAre("std::exception"));
    }
    EXPECT_EQ(registered(), row().left);
  }
};

}  // namespace tests
