#pragma once

#include <QString>
#include <QStringList>

#include "platform/ORV_1_0/String.h"
#include "platform/ORV_1_0/StringArray.h"

/// Between the library's texts and those of Qt, as UTF-8. Bytes that are no UTF-8 become U+FFFD.

namespace ORV_v1 {

/// Null gives empty text.
inline QString toQString(const char* text) { return QString::fromUtf8(text); }

inline QString toQString(const String& text) { return toQString(text.toChar()); }

inline QStringList toQStringList(const StringArray& texts) {
  QStringList list;
  list.reserve(texts.size());
  for (const char* text : texts) list.append(toQString(text));
  return list;
}

/// A text ends at its first zero character, as any text of the library does.
inline StringArray fromQStringList(const QStringList& list) {
  StringArray texts;
  for (const QString& text : list) texts.add(text.toUtf8().constData());
  return texts;
}

}  // namespace ORV_v1
