#include "library_builder/target_design.h"

#include <algorithm>
#include <cstddef>

#include "library_builder/failure.h"
#include "library_builder/messages.h"
#include "library_builder/ral_table.h"

namespace library_builder {

namespace core = adsk::core;
namespace fusion = adsk::fusion;
using core::Ptr;

namespace {

// The library that Tintora looks for is named so.
constexpr const char* proposedName = "RAL_COLORS";

/// The design that is worked on; nothing when none is, or when it does not give its appearances.
std::optional<TargetDesign> openDesign(const Ptr<core::Application>& app) {
  const Ptr<fusion::Design> design = app->activeProduct();
  const Ptr<core::Appearances> appearances = design ? design->appearances() : nullptr;
  return appearances ? std::optional(TargetDesign{design, appearances}) : std::nullopt;
}

std::size_t countRalAppearances(const Ptr<core::Appearances>& appearances) {
  const auto isThere = [&](const RalColour& colour) { return appearances->itemByName(colour.name) != nullptr; };
  return static_cast<std::size_t>(std::count_if(ralColours().begin(), ralColours().end(), isThere));
}

TargetDesign newDesign(const Ptr<core::Application>& app) {
  const std::string advice =
      "Close dialogs that are open, check that you can make a new design by hand, and run the "
      "library builder again.";
  const Ptr<core::Documents> documents = app->documents();
  const Ptr<core::Document> document = documents ? documents->add(core::FusionDesignDocumentType) : nullptr;
  if (!document) {
    throw Failure("A new design for the appearances cannot be made.", advice);
  }
  // Not the active product: something else may have become active meanwhile.
  const Ptr<core::Products> products = document->products();
  const Ptr<fusion::Design> design = products ? products->itemByProductType("DesignProductType") : nullptr;
  const Ptr<core::Appearances> appearances = design ? design->appearances() : nullptr;
  if (!appearances) {
    document->close(false);
    throw Failure("The new design does not give access to its appearances.", advice);
  }
  // Only what the save dialog proposes, so that nothing is lost when it is refused.
  document->name(proposedName);
  return {design, appearances};
}

}  // namespace

std::optional<TargetDesign> chooseDesign(const Ptr<core::Application>& app, const Ptr<core::UserInterface>& ui) {
  std::optional<TargetDesign> open = openDesign(app);
  const std::size_t present = open ? countRalAppearances(open->appearances) : 0;
  if (present == 0) {
    return newDesign(app);
  }
  const Ptr<fusion::Component> root = open->design->rootComponent();
  switch (askWhetherToGoOn(ui, root ? root->name() : "", present)) {
    case core::DialogYes:
      return open;
    case core::DialogNo:
      return newDesign(app);
    case core::DialogCancel:
      return std::nullopt;
    default:
      throw Failure("The question whether to go on with the open design got no answer.",
                    "Run the library builder again.");
  }
}

}  // namespace library_builder
