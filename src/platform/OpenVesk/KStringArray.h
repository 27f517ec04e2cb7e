#pragma once

#include "platform/OpenVesk/KArrayIteratorTemplate.h"
#include "platform/OpenVesk/KString.h"

VESK_API_OPEN

/// A growing array of strings. An index at or past the length is a programming error and ends the
/// program with a message.
class VESK_EXPORT KStringArray {
 public:
  using Iterator = KArrayIteratorTemplate<KStringArray, KString>;

  KStringArray();
  KStringArray(const KStringArray& other);
  KStringArray& operator=(const KStringArray& other);
  ~KStringArray();

  KStatus append(const KString& element);
  unsigned int length() const;

  /// Cuts the array, or fills it up with empty strings.
  KStatus setLength(unsigned int length);

  KString& operator[](unsigned int index);
  KString operator[](unsigned int index) const;

  Iterator begin() const;
  Iterator end() const;

 private:
  friend struct HostAccess;
  struct Rep;
  /// Null for an array that never held anything.
  Rep* rep_ = nullptr;
};

VESK_API_CLOSE
