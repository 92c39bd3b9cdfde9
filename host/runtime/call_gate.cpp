#include "host/runtime/call_gate.h"

#include <sstream>
#include <stdexcept>

namespace headless {

namespace {

CallGate* activeGate = nullptr;

std::string shortName(const char* className) {
  const std::string name = className;
  const std::size_t colon = name.rfind(':');
  return colon == std::string::npos ? name : name.substr(colon + 1);
}

std::string nameOfCall(const char* className, const char* member) {
  return shortName(className) + "." + member;
}

}  // namespace

void Recording::start() {
  firstNumber += lines.size();
  lines.clear();
  on = true;
}

std::optional<std::size_t> Recording::add(int depth, const std::string& text) {
  if (!on) {
    return std::nullopt;
  }
  lines.push_back({depth, text});
  return firstNumber + lines.size() - 1;
}

void Recording::addAnswer(std::size_t line, const std::string& answer) {
  if (line >= firstNumber) {
    lines[line - firstNumber].text += " -> " + answer;
  }
}

std::string Recording::text() const {
  std::string all;
  for (const Line& line : lines) {
    all.append(2 * static_cast<std::size_t>(line.depth), ' ').append(line.text).append("\n");
  }
  return all;
}

CallGate::CallGate() : previous(activeGate) {
  activeGate = this;
}

CallGate::~CallGate() {
  if (activeGate == this) {
    activeGate = previous;
  }
}

CallGate* CallGate::active() {
  return activeGate;
}

std::map<std::string, std::size_t> CallGate::countsByName() const {
  std::map<std::string, std::size_t> byName;
  for (const auto& [key, count] : counts) {
    byName[nameOfCall(key.first, key.second)] += count;
  }
  return byName;
}

void CallGate::resetCounts() {
  counts.clear();
  calls = 0;
}

void CallGate::note(const std::string& text) {
  trace.add(depth, "# " + text);
  journal.add(depth, "# " + text);
}

void CallGate::startJournal() {
  if (!addressesInJournal) {
    addressesInJournal.emplace();
  }
  journal.start();
}

std::string CallGate::journalText() const {
  const bool isOrderLost = addressesInJournal && addressesInJournal->isFull();
  return journal.text() + (isOrderLost ? orderIsLost + std::string("\n") : "");
}

void CallGate::setFault(const Fault& newFault) {
  fault = newFault;
  callsBeforeFault = 0;
  struck = false;
}

bool CallGate::strikes(const char* className, const char* member) {
  if (!fault || (!fault->call.empty() && fault->call != nameOfCall(className, member))) {
    return false;
  }
  if (++callsBeforeFault < fault->nth) {
    return false;
  }
  const FaultAnswer answer = fault->answer;
  if (callsBeforeFault - fault->nth + 1 >= fault->times) {
    fault.reset();
  }
  struck = true;
  if (answer == FaultAnswer::Exception) {
    throw std::runtime_error(nameOfCall(className, member) + " was made to fail");
  }
  return true;
}

void CallGate::reportDeleted(const char* className, const Traceable* object, const char* member) {
  const std::string name = nameOf(object, true);
  misuseList.push_back({nameOfCall(className, member), "the add-in used " + name + " after it was deleted"});
}

std::string CallGate::callText(const char* className, const Traceable* object, const char* member,
                               const std::vector<std::string>& arguments) {
  std::string text = object != nullptr ? object->traceName() : shortName(className);
  text.append(".").append(member).append("(");
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    text.append(i == 0 ? "" : ", ").append(arguments[i]);
  }
  return text.append(")");
}

std::string CallGate::textOf(double value) {
  std::ostringstream text;
  text << value;
  return text.str();
}

std::string CallGate::textOf(const std::vector<std::string>& values) {
  std::string text = "[";
  for (const std::string& value : values) {
    text.append(text.size() == 1 ? "" : ", ").append(textOf(value));
  }
  return text + "]";
}

std::string CallGate::nameOf(const Traceable* object, bool isThere) {
  if (object != nullptr) {
    return object->traceName();
  }
  return isThere ? "object" : "none";
}

CallGate::Passage::Passage(CallGate& owner, const char* className, const char* member, const std::string& call)
    : gate(owner) {
  ++gate.calls;
  ++gate.counts[{className, member}];
  traceLine = gate.trace.add(gate.depth, call);
  journalLine = gate.journal.add(gate.depth, call);
  ++gate.depth;
}

CallGate::Passage::~Passage() {
  if (isRecorded() && !hasAnswer) {
    answered("an exception");
  }
  --gate.depth;
}

void CallGate::Passage::answered(const std::string& result) {
  hasAnswer = true;
  if (traceLine) {
    gate.trace.addAnswer(*traceLine, result);
  }
  if (journalLine) {
    gate.journal.addAnswer(*journalLine, result);
  }
}

}  // namespace headless
