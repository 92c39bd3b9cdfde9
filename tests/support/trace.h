// Reading what a call gate recorded.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "host/runtime/call_gate.h"

namespace tests {

/// The recorded calls in order, such as "ToolbarTabs.itemById("SolidTab")", without what they answered.
inline std::vector<std::string> callsIn(const headless::CallGate& gate) {
  std::vector<std::string> calls;
  std::istringstream lines(gate.traceText());
  for (std::string line; std::getline(lines, line);) {
    line.erase(0, line.find_first_not_of(' '));
    if (line.front() != '#') {
      calls.push_back(line.substr(0, line.rfind(" -> ")));
    }
  }
  return calls;
}

/// Those of them that contain one of the parts.
inline std::vector<std::string> callsWith(const headless::CallGate& gate, const std::vector<std::string>& parts) {
  std::vector<std::string> calls = callsIn(gate);
  const auto lacksAll = [&parts](const std::string& call) {
    return std::none_of(parts.begin(), parts.end(),
                        [&call](const std::string& part) { return call.find(part) != std::string::npos; });
  };
  calls.erase(std::remove_if(calls.begin(), calls.end(), lacksAll), calls.end());
  return calls;
}

}  // namespace tests
