#pragma once

#include "platform/OpenVesk/KString.h"

/// The position of a text in the message catalogue.
enum MessageId : int {
  rParsingError,
  rTooFewArgsError,
  rPortNotFoundError,
  rUnknowPortTypeError,
  rInvalidArgumentCountError,
  rAnnotationNameNotFoundError,
  rEmptyAnnotationMetaDataNameError,
  rEmptyPortTypeNameError,
  rEmptyPortMetaDataNameError,
  rEmptyPortNameError,
  rInvalidPortOptions,
  rEmptyMetadataError,
  rInvalidMetadataError,
  rInvalidORVContainerError,
  rInvalidCompoundNameError,
  rInvalidNodedNameError,
  rNodeNameNotFoundError,
  rNodeNotMovedWarning,
  rAnnotationNotMovedWarning,
  rCreateCompoundError,
  rNodePathNotFoundError,
  rCompoundCannotBeReset,
  rCompoundNotEditable,
  rMetaCommandNoEdit,
  rMetaCommandBadArguments,
  rRegisterCommandError,
  rEditFlagNotCombinable,
  rCompoundEditorNotFound,
  rCompoundEditorBlank,
  rNoCompoundEditor,
  rFlagRequiresQuery,
  rFlagIsNotQuery,
  kMessageCount,
};

/// Fills the catalogue and registers every text with the host. Called once, before anything can
/// display a message.
void registerMessages();

/// Writes the text of entry `id`, in the user's language, to `out`. The id is not range-checked.
void getMessage(KString& out, MessageId id, KStatus& status);

/// Show a message of the catalogue to the user, with the arguments as `^1s` and `^2s`. Displaying
/// an error sets no status: the caller decides what it returns.
void displayError(MessageId id);
void displayError(MessageId id, const KString& arg1);
void displayError(MessageId id, const KString& arg1, const KString& arg2);
void displayWarning(MessageId id);
void displayWarning(MessageId id, const KString& arg1);
void displayWarning(MessageId id, const KString& arg1, const KString& arg2);

/// Shows a text that a graph library call produced.
void displayError(const KString& text);

/// Show the caller's own format with its arguments.
void displayErrorFormat(const KString& format, const KString& arg1);
void displayErrorFormat(const KString& format, const KString& arg1, const KString& arg2);
