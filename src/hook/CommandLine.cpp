#include "hook/CommandLine.h"

#include <QStringEncoder>
#include <algorithm>
#include <string_view>

#include "platform/ORV_1_0/QtConversions.h"
#include "plugin/orvBaseCmd.h"

using ORV_v1::PropertyList;

namespace {

constexpr char kSeparator = ' ';
constexpr char kQuote = '"';

/// Few lines are longer, so that most are put together in one piece of memory.
constexpr qsizetype kUsualSize = 256;

/// What stands for a character that cannot stand for itself; null for any other.
const char* escapeOf(QChar character) {
  switch (character.toLatin1()) {
    case '\t':
      return "\\t";
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    default:
      return nullptr;
  }
}

/// Of the bytes of a UTF-8 text.
bool standsForItself(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

bool needsEscape(QChar character) { return escapeOf(character) != nullptr; }

/// As `utf8 += text.toUtf8()`, without the text between.
void appendAsUtf8(QByteArray& utf8, const QString& text) {
  QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
  const qsizetype before = utf8.size();
  utf8.resize(before + encoder.requiredSpace(text.size()));
  const char* end = encoder.appendToBuffer(utf8.data() + before, text);
  utf8.truncate(end - utf8.constData());
}

}  // namespace

QString escapeForCommand(const QString& text) {
  if (std::none_of(text.begin(), text.end(), needsEscape)) return text;
  QString escaped;
  escaped.reserve(2 * text.size());
  for (const QChar character : text) {
    if (const char* escape = escapeOf(character)) {
      escaped += QLatin1String(escape);
    } else {
      escaped += character;
    }
  }
  return escaped;
}

CommandLine::CommandLine(const QString& command) {
  utf8_.reserve(kUsualSize);
  appendAsUtf8(utf8_, command);
}

CommandLine& CommandLine::word(const char* word) {
  utf8_ += kSeparator;
  utf8_ += word;
  return *this;
}

CommandLine& CommandLine::flag(const char* flag) { return word(flag); }

CommandLine& CommandLine::text(const QString& text) {
  utf8_ += kSeparator;
  utf8_ += kQuote;
  appendAsUtf8(utf8_, escapeForCommand(text));
  utf8_ += kQuote;
  return *this;
}

/// Most names need neither an escape nor a look at their encoding.
CommandLine& CommandLine::text(const char* text) {
  const std::string_view utf8 = text ? text : "";
  if (!std::all_of(utf8.begin(), utf8.end(), standsForItself)) {
    return this->text(ORV_v1::toQString(text));
  }
  utf8_ += kSeparator;
  utf8_ += kQuote;
  utf8_.append(utf8.data(), static_cast<qsizetype>(utf8.size()));
  utf8_ += kQuote;
  return *this;
}

CommandLine& CommandLine::texts(const QList<QString>& texts) {
  QString joined;
  serializeStringList(texts, joined);
  return text(joined);
}

CommandLine& CommandLine::properties(const PropertyList& properties) {
  return text(properties.serialize(PropertyList::kSerializeAll).toChar());
}

CommandLine& CommandLine::boolean(bool value) { return word(value ? "true" : "false"); }

CommandLine& CommandLine::number(unsigned int value) {
  return word(QByteArray::number(value).constData());
}

KString CommandLine::toKString() const {
  KString line;
  line.setUTF8(utf8_.constData());
  return line;
}
