// Enumerations of adsk::core; names and values are documented.
#pragma once

namespace adsk {
namespace core {

/// Numbers of Application::getLastError.
enum GenericErrors {
  Ok = 0,
  UnexpectedError = 1,
  InternalValidationError = 2,
  BadApiCallError = 3,
  UnderlyingObjectDeletedError = 4,
  OperationFailed = 5,
  ExpressionError = 6,
  InvalidGeometryError = 7
};

/// Buttons of a message box; the first one is the default.
enum MessageBoxButtonTypes {
  OKButtonType = 0,
  OKCancelButtonType = 1,
  RetryCancelButtonType = 2,
  YesNoButtonType = 3,
  YesNoCancelButtonType = 4
};

/// Icon of a message box.
enum MessageBoxIconTypes {
  NoIconIconType = 0,
  QuestionIconType = 1,
  InformationIconType = 2,
  WarningIconType = 3,
  CriticalIconType = 4
};

/// The button that closed a message box; Retry answers DialogYes.
enum DialogResults { DialogError = -1, DialogOK = 0, DialogCancel = 1, DialogYes = 2, DialogNo = 3 };

/// Look of a drop-down: text with icon, text only, or check boxes.
enum DropDownStyles { LabeledIconDropDownStyle = 0, TextListDropDownStyle = 1, CheckBoxDropDownStyle = 2 };

/// Why a command ended: OK and executed, Cancel, execution failed, another command started, document closed.
enum CommandTerminationReason {
  UnknownTerminationReason = 0,
  CompletedTerminationReason = 1,
  CancelledTerminationReason = 2,
  AbortedTerminationReason = 3,
  PreEmptedTerminationReason = 4,
  SessionEndingTerminationReason = 5
};

/// Where a visible appearance comes from. The reference contradicts itself about an entity's own override; own override
/// of a body = 1 and of a face = 3 is the reading taken here (assumed).
enum AppearanceSourceTypes {
  MaterialAppearanceSource = 0,
  BodyAppearanceSource = 1,
  OccurrenceAppearanceSource = 2,
  FaceAppearanceSource = 3,
  OverrideAppearanceSource = 4
};

/// Kinds of documents.
enum DocumentTypes { FusionDesignDocumentType = 0 };

/// Look of a list control in a toolbar.
enum ListControlDisplayTypes { CheckBoxListType = 0, RadioButtonlistType = 1, StandardListType = 2 };

}  // namespace core
}  // namespace adsk
