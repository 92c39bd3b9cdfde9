// The gate that every API call passes. It counts calls, records them as readable lines, and makes a chosen call fail.
// Tests, benchmarks and the command line use it; nothing else in the host knows that they do.
#pragma once

#include <Core/CoreAll.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/runtime/rising_addresses.h"

namespace headless {

/// The host's side of an API object: how lines of a trace name it.
class Traceable {
 public:
  /// Class and, in brackets, what tells this object from others of its class.
  virtual std::string traceName() const = 0;
  /// False once the object was deleted.
  virtual bool isAlive() const = 0;

 protected:
  ~Traceable() = default;
};

/// What a call answers that was made to fail: nothing (an empty handle, false, 0 or "", by its type), or an exception.
enum class FaultAnswer { Nothing, Exception };

/// Makes the `nth` call from now on fail, counted from 1 over all calls or over those of one name, and as many after it
/// as make `times`.
struct Fault {
  std::size_t nth = 1;
  FaultAnswer answer = FaultAnswer::Nothing;
  /// Such as "ListItems.add" or, for a setter, "ListItem.isSelected="; empty for any.
  std::string call = {};
  std::size_t times = 1;
};

/// A call that should not have been made, such as one on an object that was deleted.
struct Misuse {
  std::string call;
  std::string reason;
};

/// Calls as readable lines, one below and further in than the call that caused it.
class Recording {
 public:
  /// Forgets what was recorded before.
  void start();
  void stop() { on = false; }
  bool isOn() const { return on; }
  /// Adds a line and gives its number; nothing while the recording is off.
  std::optional<std::size_t> add(int depth, const std::string& text);
  /// Adds to a line what its call answered; a line that was forgotten meanwhile stays so.
  void addAnswer(std::size_t line, const std::string& answer);
  std::string text() const;

 private:
  struct Line {
    int depth = 0;
    std::string text;
  };

  bool on = false;
  /// Numbers go on over a start, so that one from before it is not taken for a later line.
  std::size_t firstNumber = 0;
  std::vector<Line> lines;
};

/// One gate for each host; the newest one that lives is the active one.
class CallGate {
 public:
  CallGate();
  ~CallGate();
  CallGate(const CallGate&) = delete;
  CallGate& operator=(const CallGate&) = delete;

  /// The gate that calls pass now; nullptr when no host is there.
  static CallGate* active();

  /// Calls since the last reset, by name and in all.
  std::map<std::string, std::size_t> countsByName() const;
  std::size_t callCount() const { return calls; }
  void resetCounts();

  /// Starts and stops recording; starting forgets what was recorded before.
  void startTrace() { trace.start(); }
  void stopTrace() { trace.stop(); }
  bool isTracing() const { return trace.isOn(); }
  /// Adds a line that is no call, such as the name of an event.
  void note(const std::string& text);
  /// What was recorded, one call a line, indented by depth.
  std::string traceText() const { return trace.text(); }

  /// A second trace, of everything from here on, however often the first one is started and stopped. It is the same on
  /// every system: objects are made at rising addresses from here on, so there should be none of a design yet.
  /// Where there were too many objects for that, the last line of the text is `orderIsLost`.
  void startJournal();
  std::string journalText() const;
  static constexpr const char* orderIsLost = "# too many objects: the order of the last ones is chance";

  /// Sets the fault, which replaces the one before.
  void setFault(const Fault& newFault);
  void clearFault() { fault.reset(); }
  /// True once the fault that was set last has struck.
  bool faultStruck() const { return struck; }

  const std::vector<Misuse>& misuses() const { return misuseList; }

  /// Passes one call: `body` does what the call means and is skipped when the call fails or the object is gone.
  template <class Body, class... Arguments>
  static std::invoke_result_t<Body> pass(const char* className, const Traceable* object, bool isAlive,
                                         const char* member, Body&& body, const Arguments&... arguments) {
    using Result = std::invoke_result_t<Body>;
    CallGate* gate = active();
    if (gate == nullptr) {
      return isAlive ? body() : nothing<Result>();
    }
    std::string call;
    if (gate->trace.isOn() || gate->journal.isOn()) {
      call = gate->callText(className, object, member, {textOf(arguments)...});
    }
    Passage passage(*gate, className, member, call);
    if (gate->strikes(className, member)) {
      passage.answered("nothing, as the call was made to fail");
      return nothing<Result>();
    }
    if (!isAlive) {
      gate->reportDeleted(className, object, member);
      passage.answered("nothing, as the object was deleted");
      return nothing<Result>();
    }
    Result result = body();
    if (passage.isRecorded()) {
      passage.answered(textOf(result));
    }
    return result;
  }

 private:
  // Keeps the place of a call in the recordings while calls that it causes are recorded below it.
  class Passage {
   public:
    Passage(CallGate& owner, const char* className, const char* member, const std::string& call);
    ~Passage();
    Passage(const Passage&) = delete;
    Passage& operator=(const Passage&) = delete;
    bool isRecorded() const { return traceLine.has_value() || journalLine.has_value(); }
    void answered(const std::string& result);

   private:
    CallGate& gate;
    std::optional<std::size_t> traceLine;
    std::optional<std::size_t> journalLine;
    bool hasAnswer = false;
  };

  /// Texts that live as long as the program, told apart by where they stand.
  using CallKey = std::pair<const char*, const char*>;
  struct CallKeyHash {
    std::size_t operator()(const CallKey& key) const {
      return std::hash<const char*>()(key.first) ^ (std::hash<const char*>()(key.second) << 1U);
    }
  };

  template <class Result>
  static Result nothing() {
    if constexpr (std::is_same_v<Result, adsk::core::DialogResults>) {
      return adsk::core::DialogError;
    } else if constexpr (std::is_same_v<Result, const char*>) {
      return "";
    } else {
      return Result();
    }
  }

  static std::string textOf(bool value) { return value ? "true" : "false"; }
  static std::string textOf(const std::string& value) { return '"' + value + '"'; }
  static std::string textOf(const char* value) { return textOf(std::string(value)); }
  static std::string textOf(double value);
  static std::string textOf(const std::vector<std::string>& values);
  static std::string textOf(const adsk::core::EventHandler*) { return "handler"; }
  template <class T>
  static std::enable_if_t<std::is_integral_v<T> || std::is_enum_v<T>, std::string> textOf(T value) {
    return std::to_string(static_cast<long long>(value));
  }
  template <class T>
  static std::string textOf(const adsk::core::Ptr<T>& handle) {
    return nameOf(dynamic_cast<const Traceable*>(handle.get()), handle.get() != nullptr);
  }
  static std::string nameOf(const Traceable* object, bool isThere);

  static std::string callText(const char* className, const Traceable* object, const char* member,
                              const std::vector<std::string>& arguments);
  bool strikes(const char* className, const char* member);
  void reportDeleted(const char* className, const Traceable* object, const char* member);

  CallGate* previous;
  std::unordered_map<CallKey, std::size_t, CallKeyHash> counts;
  std::size_t calls = 0;
  int depth = 0;
  Recording trace;
  Recording journal;
  std::optional<RisingAddresses> addressesInJournal;
  std::optional<Fault> fault;
  std::size_t callsBeforeFault = 0;
  bool struck = false;
  std::vector<Misuse> misuseList;
};

}  // namespace headless
