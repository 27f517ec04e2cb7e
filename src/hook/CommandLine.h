#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/PropertyList.h"
#include "platform/OpenVesk/KString.h"

/// The first words of the lines.
inline const QString kChangeBracketCommand = QStringLiteral("orvChangeBracket");
inline const QString kCompoundCommand = QStringLiteral("orvCompound");
inline const QString kConnectCommand = QStringLiteral("orvConnect");
inline const QString kCopyCommand = QStringLiteral("orvCopy");
inline const QString kNodeCommand = QStringLiteral("orvNode");
inline const QString kPasteCommand = QStringLiteral("orvPaste");
inline const QString kPortCommand = QStringLiteral("orvPort");
inline const QString kWatchPointCommand = QStringLiteral("orvWatchPoint");
inline const QString kUndoInfoCommand = QStringLiteral("undoInfo");
inline const QString kOptionVarCommand = QStringLiteral("optionVar");

/// A line of the host's command language that is put together token by token. Each operation adds
/// one token, apart from the last by a blank, and gives the line back.
class CommandLine {
 public:
  explicit CommandLine(const QString& command);

  /// As it stands: a flag with its dash.
  CommandLine& flag(const char* flag);

  /// Text of any kind, in quotes; the host reads the same text again. Empty text is a token too.
  CommandLine& text(const QString& text);

  /// Null counts as empty.
  CommandLine& text(const char* text);

  CommandLine& text(const ORV_v1::Namable& name) { return text(name.getName()); }

  /// A list of texts, as the one text that the commands split again.
  CommandLine& texts(const QList<QString>& texts);

  /// All keys with their values, as one text.
  CommandLine& properties(const ORV_v1::PropertyList& properties);

  CommandLine& boolean(bool value);
  CommandLine& number(unsigned int value);

  KString toKString() const;

 private:
  CommandLine& word(const char* word);

  QByteArray utf8_;
};

/// The text as it stands between the quotes of a host's line.
QString escapeForCommand(const QString& text);
