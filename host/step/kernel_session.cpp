#include "host/step/kernel_session.h"

#include <Interface_Static.hxx>
#include <Message.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <TCollection_AsciiString.hxx>
#include <XCAFDoc_ShapeTool.hxx>

namespace headless::step {

namespace {

/// Keeps the first failure and drops everything else.
class FailureKeeper : public Message_Printer {
 public:
  mutable std::string first;

 protected:
  void send(const TCollection_AsciiString& text, const Message_Gravity gravity) const override {
    if (gravity >= Message_Fail && first.empty()) {
      first = text.ToCString();
    }
  }
};

}  // namespace

KernelSession::KernelSession() : failures(new FailureKeeper) {
  Message_SequenceOfPrinters& printers = Message::DefaultMessenger()->ChangePrinters();
  previousPrinters = printers;
  printers.Clear();
  printers.Append(failures);
  STEPCAFControl_Controller::Init();
  Interface_Static::SetCVal("xstep.cascade.unit", "MM");
  Interface_Static::SetCVal("write.step.unit", "MM");
  Interface_Static::SetCVal("write.step.schema", "AP214IS");
  Interface_Static::SetCVal("read.step.codepage", "UTF8");
  XCAFDoc_ShapeTool::SetAutoNaming(false);
}

KernelSession::~KernelSession() {
  Message::DefaultMessenger()->ChangePrinters() = previousPrinters;
}

std::string KernelSession::firstFailure() const {
  const std::string& text = static_cast<const FailureKeeper*>(failures.get())->first;
  const std::size_t begin = text.find_first_not_of("* \n");
  return begin == std::string::npos ? std::string() : text.substr(begin, text.find_last_not_of("* \n") + 1 - begin);
}

}  // namespace headless::step
