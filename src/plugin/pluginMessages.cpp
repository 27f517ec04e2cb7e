#include "plugin/pluginMessages.h"

#include <array>

#include "platform/OpenVesk/KGlobal.h"
#include "platform/OpenVesk/KStringResource.h"

namespace {

constexpr const char* kPluginId = "orvCmdPlugin";

struct MessageRow {
  const char* key;
  const char* text;
};

/// In the order of `MessageId`. Keys are kept with their spelling: translations name them.
constexpr std::array<MessageRow, kMessageCount> kMessages{{
    {"rParsingError", "Invalid parameters detected.  Exiting."},
    {"rTooFewArgsError", "Too few arguments given."},
    {"rPortNotFoundError", "A port named ^2s was not found on ^1s"},
    {"rUnknowPortTypeError", "Unknown port type ^1s"},
    {"rInvalidArgumentCountError", "Wrong number of arguments provided"},
    {"rAnnotationNameNotFoundError", "Backdrop/Sticky named ^1s was not found in ^2s"},
    {"rEmptyAnnotationMetaDataNameError",
     "The backdrop/sticky name ^1s and the metadata name ^2s cannot be empty"},
    {"rEmptyPortTypeNameError", "The port name ^1s and the data type ^2s cannot be empty"},
    {"rEmptyPortMetaDataNameError", "The port name ^1s and the metadata name ^2s cannot be empty"},
    {"rEmptyPortNameError", "The port name ^1s cannot be empty"},
    {"rInvalidPortOptions", "Invalid port options \"^1s\""},
    {"rEmptyMetadataError", "The metadata name cannot be empty"},
    {"rInvalidMetadataError", "Invalid metadata string format"},
    {"rInvalidORVContainerError", "^1s is not a DG ORV container"},
    {"rInvalidCompoundNameError", "^1s is not a compound name"},
    {"rInvalidNodedNameError", "^1s is not a node name"},
    {"rNodeNameNotFoundError", "Node named ^1s was not found in ^2s"},
    {"rNodeNotMovedWarning", "Node named ^1s was not found and will not be moved into ^2s"},
    {"rAnnotationNotMovedWarning",
     "Backdrop/Sticky named ^1s was not found and will not be moved into ^2s"},
    {"rCreateCompoundError", "Failed to create compound"},
    {"rNodePathNotFoundError", "The node path ^1s was not found"},
    {"rCompoundCannotBeReset", "Compound named ^1s cannot be reset to factory"},
    {"rCompoundNotEditable", "The compound is not editable"},
    {"rMetaCommandNoEdit", "This command does not support edits."},
    {"rMetaCommandBadArguments", "^1s expects type ^2s"},
    {"rRegisterCommandError", "Failed to register plugin command: ^1s"},
    {"rEditFlagNotCombinable", "Edit flag cannot be combined with other flags"},
    {"rCompoundEditorNotFound", "A compound editor by that name was not found"},
    {"rCompoundEditorBlank", "The compound editor must not be empty for this flag"},
    {"rNoCompoundEditor", "No compound editors found"},
    {"rFlagRequiresQuery", "Command flag requires Query mode (-q)"},
    {"rFlagIsNotQuery", "Invalid command flag for Query mode"},
}};

std::array<KStringResourceId, kMessageCount> messageCatalogue;

/// Substitutes into `message`, which is the format as well.
void substitute(KString& message, const KString& arg1 = KString::argUnused,
                const KString& arg2 = KString::argUnused) {
  const KString& unused = KString::argUnused;
  message.format(message, arg1, arg2, unused, unused, unused, unused, unused, unused, unused,
                 unused);
}

template <class... Arguments>
KString messageText(MessageId id, const Arguments&... arguments) {
  KString message;
  KStatus status;
  getMessage(message, id, status);
  substitute(message, arguments...);
  return message;
}

}  // namespace

void registerMessages() {
  for (std::size_t i = 0; i < kMessages.size(); ++i) {
    messageCatalogue[i] =
        KStringResourceId(kPluginId, kMessages[i].key, KString(kMessages[i].text));
  }
  for (const KStringResourceId& entry : messageCatalogue) KStringResource::registerString(entry);
}

void getMessage(KString& out, MessageId id, KStatus& status) {
  const KStringResourceId entry = messageCatalogue[id];
  out = KStringResource::getString(entry, status);
}

void displayError(MessageId id) { KGlobal::displayError(messageText(id)); }

void displayError(MessageId id, const KString& arg1) {
  KGlobal::displayError(messageText(id, arg1));
}

void displayError(MessageId id, const KString& arg1, const KString& arg2) {
  KGlobal::displayError(messageText(id, arg1, arg2));
}

void displayWarning(MessageId id) { KGlobal::displayWarning(messageText(id)); }

void displayWarning(MessageId id, const KString& arg1) {
  KGlobal::displayWarning(messageText(id, arg1));
}

void displayWarning(MessageId id, const KString& arg1, const KString& arg2) {
  KGlobal::displayWarning(messageText(id, arg1, arg2));
}

void displayError(const KString& text) { KGlobal::displayError(text); }

void displayErrorFormat(const KString& format, const KString& arg1) {
  KString message(format);
  substitute(message, arg1);
  KGlobal::displayError(message);
}

void displayErrorFormat(const KString& format, const KString& arg1, const KString& arg2) {
  KString message(format);
  substitute(message, arg1, arg2);
  KGlobal::displayError(message);
}
