// Undo and redo. Every change of a design goes through a history, which puts it into the transaction that is open or
// makes it a step of its own.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace headless::model {

/// The changes of one design, as steps that can be taken back and done again. Whatever a change captures must outlive
/// the history. Not copyable; owned by whoever owns the design.
class History {
 public:
  History() = default;
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  /// Opens a transaction: changes are gathered until commit or rollback. Raises std::logic_error when one is open.
  void begin();
  bool isOpen() const { return open; }
  /// True when the open transaction holds at least one change.
  bool hasPendingChanges() const { return !pending.empty(); }
  /// Makes what was gathered one step of that name, and closes the transaction; with no change there is no step, and
  /// what was taken back before can still be done again. Raises std::logic_error when none is open.
  void commit(const std::string& stepName);
  /// Takes back what was gathered and closes the transaction. Raises std::logic_error when none is open.
  void rollback();

  /// Sets `field` to `value`, so that it can be taken back; nothing happens when it has that value already. Outside a
  /// transaction this is a step called "Edit".
  template <class Field>
  void assign(Field& field, std::common_type_t<Field> value) {
    if (field == value) {
      return;
    }
    record({[&field, value] { field = value; }, [&field, previous = field] { field = previous; }});
  }

  /// Takes back the newest step; false when there is none or a transaction is open.
  bool undo();
  /// Does the step taken back last again; false when there is none or a transaction is open.
  bool redo();

  /// Names of the steps that undo would take back, oldest first.
  std::vector<std::string> undoSteps() const;
  /// Names of the steps that redo would do again, next one last.
  std::vector<std::string> redoSteps() const;
  /// Called after every change made, but not for those taken back or done again; may be empty.
  std::function<void()> onChange = nullptr;

  /// Counts every change made, taken back or done again: when it differs, something changed in between.
  std::size_t revision() const { return changeCount; }

 private:
  struct Change {
    std::function<void()> apply;
    std::function<void()> revert;
  };
  struct Step {
    std::string name;
    std::vector<Change> changes;
  };

  void record(Change change);
  void finish(Step step);
  void applyAll(const std::vector<Change>& changes);
  void revertAll(const std::vector<Change>& changes);
  static std::vector<std::string> namesOf(const std::vector<Step>& steps);

  bool open = false;
  std::vector<Change> pending;
  std::vector<Step> done;
  std::vector<Step> undone;
  std::size_t changeCount = 0;
};

}  // namespace headless::model
