#include "tests/cli/demo_steps.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace tests {

namespace {

/// What the demo must show, in this order.
const std::vector<const char*> shownInOrder = {
    "SOLID > QV Tools",
    "( Open Help )  Open User Guide",
    "nothing picked",
    "2 picked",
    "Opaque(0,255,0) - overriden appearance.",
    "[ ral 30 ",
    "Physical material: Steel S235JR;  Density: 7850",
    "RAL 3000 Flame red - overriden appearance.",
    "Remove appearances applied to bodies & faces?",
    "answered: [ Yes ]",
    "RAL 5015 Sky blue - overriden appearance.",
    "Various",
    "Physical material: Various",
    "Opaque(199,199,0) - overriden appearance.",
    "Brass - Polished - appearance by assigned",
    "undo",
    "Opaque(199,199,0) - overriden appearance.",
    "Brass - Polished - appearance by assigned",
    "Opaque(0,0,255) - overriden appearance.",
    "Steel - Satin - appearance by assigned material.",
    "The help button opens the user's guide",
    "Tintora_USER_CmdSet.txt",
    "[ Brass C26000 ",
    "#007CB0  RAL 5015 Sky blue   own",
    "#A72920  RAL 3000 Flame red  own",
    "Saved ",
};

}  // namespace

void expectEveryStep(const std::string& shown) {
  std::size_t position = 0;
  for (const char* text : shownInOrder) {
    const std::size_t found = shown.find(text, position);
    ASSERT_NE(found, std::string::npos) << "\"" << text << "\" is not shown after:\n" << shown.substr(0, position);
    position = found + std::strlen(text);
  }
}

}  // namespace tests
