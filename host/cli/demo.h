// The add-in at work on an assembly, step by step, told with the dialog's own texts.
#pragma once

#include "host/cli/output_files.h"
#include "host/cli/sitting.h"

namespace headless::cli {

/// Plays the steps with the design that is open, tells them on the standard output, and writes the files. Made for the
/// assembly "as1" of STEP test files: a plate with two brackets, a rod, bolts and nuts. Raises Failure when the
/// assembly is another one.
void playDemo(Sitting& sitting, const OutputFiles& outputs, bool withColours);

}  // namespace headless::cli
