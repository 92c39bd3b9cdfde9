// The geometry kernel's global state while this folder works with it: silent, and set up for what we read and write.
#pragma once

#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <Message_SequenceOfPrinters.hxx>
#include <string>

namespace headless::step {

/// Levels of assemblies in assemblies that the kernel can deal with: it recurses through them on the stack.
inline constexpr int deepestNesting = 2000;

/// While one lives, nothing the kernel says reaches the console; what it reports as failed is kept instead. Units are
/// millimetres, files are written as AP214, texts in files are taken for UTF-8. One at a time per process, as the
/// kernel's settings are global.
class KernelSession {
 public:
  KernelSession();
  ~KernelSession();
  KernelSession(const KernelSession&) = delete;
  KernelSession& operator=(const KernelSession&) = delete;

  /// The first failure that the kernel reported, in its own words; empty when it reported none.
  std::string firstFailure() const;

 private:
  Message_SequenceOfPrinters previousPrinters;
  Handle(Message_Printer) failures;
};

}  // namespace headless::step
