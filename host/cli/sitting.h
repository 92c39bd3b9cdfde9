// One run of the headless host for the command line: the add-in's folder, the host with the libraries in it, the design
// that is open, and the record of calls.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "host/cli/addin_copy.h"
#include "host/cli/progress_line.h"
#include "host/files/atomic_file.h"
#include "host/runtime/session.h"

namespace headless::cli {

struct SittingOptions {
  /// Empty for the one beside the program.
  std::filesystem::path addInFolder;
  bool keepsSettings = false;
  /// Name of a preset.
  std::string profile = "documented";
  /// Empty for no record of calls.
  std::filesystem::path traceFile;
  bool countsCalls = false;
  bool isQuiet = false;
};

class Sitting {
 public:
  /// Raises Failure when there is no add-in, and files::Error when the trace cannot be written.
  explicit Sitting(const SittingOptions& sittingOptions);
  Sitting(const Sitting&) = delete;
  Sitting& operator=(const Sitting&) = delete;
  /// Stops the add-in, writes the trace unless finish() did, and prints the counts, also after a failure: that is when
  /// they are needed.
  ~Sitting();

  Session& session() { return *session_; }
  const AddInCopy& addIn() const { return addIn_; }
  ProgressStyle progress() const { return progressStyle(options.isQuiet); }
  /// The file that is open; empty before open().
  const std::filesystem::path& file() const { return openFile; }

  /// Reads a file (see design_files.h) and opens it. Materials that the add-in's libraries know by name are taken from
  /// there.
  void open(const std::filesystem::path& file);
  /// Loads and runs the add-in. Raises Failure when it does not start.
  void startAddIn();
  /// Stops and unloads it.
  void stopAddIn();
  /// Presses the add-in's button. Raises Failure when no dialog opens.
  void openDialog();
  /// Closes the dialog, if one is open.
  void closeDialog();

  /// Writes the trace, if one is wanted; for runs that went well so far, once the add-in was stopped and before
  /// anything is saved. Raises files::Error when it cannot be written.
  void finish();

  /// Raises Failure when an exception left the add-in, naming all of them. `doing` completes "while ...".
  void requireNoErrors(const std::string& doing);

 private:
  void loadMaterialLibraries();

  SittingOptions options;
  AddInCopy addIn_;
  std::optional<files::AtomicFile> traceOutput;
  bool isTraceDue = false;
  std::unique_ptr<Session> session_;
  std::filesystem::path openFile;
  bool isRunning = false;
};

}  // namespace headless::cli
