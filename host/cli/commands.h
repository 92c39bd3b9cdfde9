// The sub-commands. Each adds itself to the command line and does its work when it is called.
#pragma once

#include <CLI/CLI.hpp>

namespace headless::cli {

/// What is in an assembly.
void addTreeCommand(CLI::App& program);
/// The add-in's dialog as text.
void addDialogCommand(CLI::App& program);
/// A picture of an assembly; adds nothing in builds without a geometry kernel.
void addRenderCommand(CLI::App& program);
/// Assigns an appearance or a material.
void addApplyCommand(CLI::App& program);
/// Removes applied appearances.
void addClearCommand(CLI::App& program);
/// Shows the add-in at work, step by step.
void addDemoCommand(CLI::App& program);
/// Saves an assembly as a file of another kind.
void addConvertCommand(CLI::App& program);

}  // namespace headless::cli
