#pragma once

#include <QString>

#include "platform/OpenVesk/KString.h"

/// A text of the graph library as the host's. Bytes that are no UTF-8 become U+FFFD.
inline KString fromUTF8(const char* utf8) {
  KString text;
  if (!text.setUTF8(utf8)) text.setUTF8(QString::fromUtf8(utf8).toUtf8().constData());
  return text;
}
