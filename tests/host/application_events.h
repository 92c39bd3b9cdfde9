// Handlers for the application-wide events of commands, attached as long as they live.
#pragma once

#include "tests/support/recording_handlers.h"

namespace tests {

struct ApplicationEvents {
  ApplicationEvents(const adsk::core::Ptr<adsk::core::UserInterface>& ui, Log& log)
      : starting(log, "starting"), createdAny(log, "createdAny"), terminated(log, "terminated") {
    ui->commandStarting()->add(&starting);
    ui->commandCreated()->add(&createdAny);
    ui->commandTerminated()->add(&terminated);
  }

  ApplicationRecorder starting;
  ApplicationRecorder createdAny;
  ApplicationRecorder terminated;
};

}  // namespace tests
