// The sub-commands that change an assembly and save it: apply, clear and demo.
#include <iostream>
#include <memory>

#include "host/cli/commands.h"
#include "host/cli/demo.h"
#include "host/cli/failure.h"
#include "host/cli/options.h"
#include "host/cli/picture_files.h"
#include "host/cli/text_layout.h"

namespace headless::cli {

namespace {

constexpr const char* applyGroup = "What to apply";
constexpr std::size_t namedObjects = 3;

/// What both commands take.
struct ChangeOptions {
  std::filesystem::path file;
  SittingOptions sitting;
  PickOptions pick;
  OutputFiles outputs;
};

void addObjectOptions(CLI::App& command, ChangeOptions& options) {
  addInputFile(command, options.file);
  addPickOptions(command, options.pick, Picking::Required);
}

void addRunOptions(CLI::App& command, ChangeOptions& options) {
  addOutputOptions(command, options.outputs);
  addAddInOptions(command, options.sitting);
}

/// Opens the file and the dialog, has the work done, closes the dialog and saves. The outputs were checked before.
template <class Work>
void changeAndSave(const ChangeOptions& options, Work&& work) {
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  sitting.startAddIn();
  sitting.openDialog();
  work(sitting);
  sitting.closeDialog();
  sitting.stopAddIn();
  sitting.finish();
  writeOutputs(sitting.session().design(), options.outputs, sitting.progress());
}

struct ApplyOptions : ChangeOptions {
  ItemChoice appearance;
  ItemChoice material;
  bool setsAppearanceByMaterial = false;
  std::string answer;
  std::filesystem::path picture;
  std::filesystem::path questionPicture;

  Assignment assignment() const {
    Assignment result;
    if (!appearance.name.empty()) {
      result.appearance = appearance;
    }
    if (!material.name.empty()) {
      result.material = material;
    }
    result.setsAppearanceByMaterial = setsAppearanceByMaterial;
    return result;
  }
};

std::string describe(const Assignment& assignment) {
  std::string text;
  if (assignment.appearance) {
    text = "appearance \"" + assignment.appearance->name + "\"";
  }
  if (assignment.material) {
    text += std::string(text.empty() ? "" : " and ") + "material \"" + assignment.material->name + "\"";
  }
  return text;
}

void reportApply(const Assignment& assignment, const WorkDone& work, PickKind kind) {
  const std::string objects = countedKind(work.picked.size(), kind);
  if (!work.hasChanged) {
    std::cout << "Nothing changed: " << objects << " had it already, " << describe(assignment) << "\n";
    return;
  }
  std::cout << "Applied " << describe(assignment) << " to " << objects << "\n";
  if (!work.otherLook.empty()) {
    std::cout << "Note: " << countedKind(work.otherLook.size(), kind) << " kept another appearance ("
              << listed(work.otherLook, namedObjects)
              << "). With a material, the add-in puts back what was applied before;\nto paint over it, add "
                 "--set-appearance-by-material.\n";
  }
}

/// The dialog after Apply, with the same objects picked again, and the last question.
void savePictures(Sitting& sitting, const ApplyOptions& options) {
  if (!options.questionPicture.empty()) {
    saveMessagePicture(sitting, options.questionPicture);
  }
  if (!options.picture.empty()) {
    pickInDialog(sitting, options.pick.picks());
    saveDialogPicture(sitting, "", options.picture);
  }
}

void runApply(const ApplyOptions& options) {
  const Assignment assignment = options.assignment();
  if (!assignment.appearance && !assignment.material) {
    throw UsageError("There is nothing to apply: give --appearance, --material or both");
  }
  checkOutputs(options.file, options.outputs,
               {{"--trace", options.sitting.traceFile},
                {"--picture", options.picture, {".svg"}},
                {"--question-picture", options.questionPicture, {".svg"}}});
  changeAndSave(options, [&](Sitting& sitting) {
    prepareAnswers(sitting, options.answer.empty() ? std::nullopt : std::optional<bool>(options.answer == "yes"));
    const Picks picks = options.pick.picks();
    reportApply(assignment, applyInDialog(sitting, picks, assignment), picks.kind);
    savePictures(sitting, options);
  });
}

void runClear(const ChangeOptions& options) {
  checkOutputs(options.file, options.outputs, {{"--trace", options.sitting.traceFile}});
  changeAndSave(options, [&](Sitting& sitting) {
    const Picks picks = options.pick.picks();
    const WorkDone work = clearInDialog(sitting, picks);
    const std::string objects = countedKind(work.picked.size(), picks.kind);
    if (work.hasChanged) {
      std::cout << "Removed the applied appearances of " << objects << " and all below\n";
      return;
    }
    if (picks.kind == PickKind::Face && !withOwnLook(work.picked).empty()) {
      throw Failure(
          "The add-in's remove button leaves the appearances of picked faces as they are: pick their bodies instead, "
          "which clears all of their faces. Nothing was saved.");
    }
    std::cout << "Nothing to remove: no appearance is applied to " << objects << " or anything below\n";
  });
}

struct DemoOptions {
  std::filesystem::path file;
  SittingOptions sitting;
  OutputFiles outputs;
  ColourOption colour;
};

void runDemo(const DemoOptions& options) {
  checkOutputs(options.file, options.outputs, {{"--trace", options.sitting.traceFile}});
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  playDemo(sitting, options.outputs, options.colour.isOn());
}

void addAssignmentOptions(CLI::App& command, ApplyOptions& options) {
  const auto addName = [&](const char* option, std::string& name, const char* description) {
    return command.add_option(option, name, description)->type_name("NAME")->group(applyGroup);
  };
  auto* appearance = addName("--appearance", options.appearance.name, "The appearance to apply");
  addName("--appearance-library", options.appearance.library,
          "Its library; the one that the dialog shows, RAL_COLORS, unless given")
      ->needs(appearance);
  auto* material = addName("--material", options.material.name, "The material to assign");
  addName("--material-library", options.material.library, "Its library; the one that the dialog shows unless given")
      ->needs(material);
  command
      .add_flag("--set-appearance-by-material", options.setsAppearanceByMaterial,
                "With --material: show the material's look instead of putting back what was applied before; with "
                "--appearance as well, a second Apply gives that on top")
      ->group(applyGroup)
      ->needs(material);
  command
      .add_option(
          "--answer", options.answer,
          "Answer to the add-in's question whether appearances of bodies and faces below are to be removed, yes "
          "or no; without it the question is put in the terminal")
      ->check(CLI::IsMember({"yes", "no"}))
      ->type_name("ANSWER")
      ->group(applyGroup);
}

void addPictureOptions(CLI::App& command, ApplyOptions& options) {
  const auto add = [&](const char* option, std::filesystem::path& file, const char* description) {
    addPathOption(command, option, file, description)->type_name("OUT.svg")->group("Pictures");
  };
  add("--picture", options.picture,
      "Where to save a picture of the dialog after Apply, with the same objects picked again");
  add("--question-picture", options.questionPicture, "Where to save a picture of the last question that was asked");
}

}  // namespace

void addApplyCommand(CLI::App& program) {
  const auto options = std::make_shared<ApplyOptions>();
  CLI::App& command =
      *program.add_subcommand("apply", "Assign an appearance, a material or both, in the add-in's dialog, and save");
  addObjectOptions(command, *options);
  addAssignmentOptions(command, *options);
  addPictureOptions(command, *options);
  addRunOptions(command, *options);
  command.callback([options] { runApply(*options); });
}

void addClearCommand(CLI::App& program) {
  const auto options = std::make_shared<ChangeOptions>();
  CLI::App& command =
      *program.add_subcommand("clear", "Remove applied appearances with the add-in's remove button, and save");
  addObjectOptions(command, *options);
  addRunOptions(command, *options);
  command.callback([options] { runClear(*options); });
}

void addDemoCommand(CLI::App& program) {
  const auto options = std::make_shared<DemoOptions>();
  CLI::App& command = *program.add_subcommand(
      "demo",
      "Show the add-in at work, step by step, on the assembly as1 of STEP test files, and save what came of it");
  addInputFile(command, options->file);
  addOutputOptions(command, options->outputs);
  addColourOption(command, options->colour);
  addAddInOptions(command, options->sitting);
  command.callback([options] { runDemo(*options); });
}

}  // namespace headless::cli
