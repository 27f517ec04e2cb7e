// What the editors want of the host beside edits: undo, preferences, panels.

#include <QJsonDocument>

#include "editors/editorNames.h"
#include "hook/execution.h"
#include "hook/orvVeskCommandHook.h"
#include "platform/OpenVesk/KGlobal.h"
#include "platform/orvUI_1_0/UserPrefs.h"

namespace {

const QString kPreferencesVariable = QStringLiteral("orvUIUserPrefs");

CommandLine preferencesLine(const char* flag) {
  CommandLine line(kOptionVarCommand);
  line.flag(flag).text(kPreferencesVariable);
  return line;
}

bool readInt(const KCommandResult& result, int& value) {
  return result.resultType() != KCommandResult::kNone && result.getResult(value);
}

/// What is no JSON is passed over.
void loadPreferences() {
  KCommandResult result;
  runSilently(preferencesLine("-exists").toKString(), result);
  int exists = 0;
  if (!readInt(result, exists) || exists != 1) return;
  runSilently(preferencesLine("-query").toKString(), result);
  KString text;
  if (result.resultType() == KCommandResult::kNone || !result.getResult(text)) return;
  const QJsonDocument document = QJsonDocument::fromJson(QByteArray(text.asUTF8()));
  if (!document.isNull()) orvUI_v1::setUserPrefs(document);
}

void loadMouseButtons() {
  KCommandResult result;
  if (!runSilently("mouse -mouseButtonTrackingStatus", result)) return;
  int buttons = 3;
  if (result.getResult(buttons) && buttons >= 1 && buttons <= 3) {
    orvUI_v1::setNumberOfMouseButtons(buttons);
  }
}

/// Without any preference what is stored stays.
void savePreferences() {
  const QJsonDocument document = orvUI_v1::getUserPrefs(QJsonDocument());
  const QString json = QString::fromUtf8(document.toJson(QJsonDocument::Compact));
  if (json.isEmpty()) return;
  CommandLine line(kOptionVarCommand);
  runSilently(line.flag("-stringValue").text(kPreferencesVariable).text(json).toKString());
}

}  // namespace

void orvVeskCommandHook::undo() { KGlobal::executeCommandOnIdle("undo", true); }

void orvVeskCommandHook::redo() { KGlobal::executeCommandOnIdle("redo", true); }

/// The host's names of chunks have no blanks.
void orvVeskCommandHook::openUndoChunk(const QString& name) {
  QString chunk = name;
  chunk.replace(QLatin1Char(' '), QLatin1Char('_'));
  CommandLine line(kUndoInfoCommand);
  line.flag("-openChunk");
  if (!chunk.isEmpty()) line.flag("-chunkName").text(chunk);
  runSilently(line.toKString());
}

void orvVeskCommandHook::closeUndoChunk() {
  runSilently(CommandLine(kUndoInfoCommand).flag("-closeChunk").toKString());
}

/// Through the interface, as `cutSelection`.
void orvVeskCommandHook::abandonUndoChunk() {
  AppServicesHook& services = *this;
  services.closeUndoChunk();
  services.undo();
}

/// What lay on the queue survives.
void orvVeskCommandHook::setUndoSuspended(bool suspended) {
  CommandLine line(kUndoInfoCommand);
  runSilently(line.flag("-stateWithoutFlush").boolean(!suspended).toKString());
  hookUndoEnabled = !suspended;
}

bool orvVeskCommandHook::isUndoing() { return KGlobal::isUndoing(); }

bool orvVeskCommandHook::isRedoing() { return KGlobal::isRedoing(); }

void orvVeskCommandHook::syncUserPrefs(int direction) {
  if (direction != kLoadPrefs) return savePreferences();
  loadPreferences();
  loadMouseButtons();
}

/// The flag is glued to the command, without a blank: the host is to get it so.
void orvVeskCommandHook::showParameterEditor(int mode) {
  KString line = kParameterEditorCommand;
  if (mode == 1) line += "-info";
  line += ";";
  runSilently(line);
}
