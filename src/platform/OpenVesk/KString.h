#pragma once

#include "platform/OpenVesk/KStatus.h"

VESK_API_OPEN

/// The host's string: text kept as UTF-8, shared between copies until one of them changes.
///
/// "Narrow" text is in the encoding of the C locale in force (`LC_CTYPE`), which is UTF-8 on any
/// usual machine. Plain `const char*` arguments are narrow; only `setUTF8` and `asUTF8` always mean
/// UTF-8. Null pointers count as empty text.
class VESK_EXPORT KString {
 public:
  KString();
  KString(const char* narrow);
  KString(const KString& other);
  ~KString();

  /// The text in the narrow encoding, valid while this string lives unchanged. A character that the
  /// encoding lacks becomes '?'.
  const char* asChar() const;

  /// The text in UTF-8, valid while this string lives unchanged.
  const char* asUTF8() const;

  /// Bytes of the UTF-8 text.
  unsigned int length() const;

  /// Unicode characters (code points).
  unsigned int numChars() const;

  KString& operator=(const char* narrow);
  KString& operator=(const KString& other);
  KString& operator+=(const char* narrow);
  KString& operator+=(const KString& other);
  bool operator==(const char* narrow) const;
  bool operator!=(const char* narrow) const;

  /// Replaces the text. `StatusBadArgument`, with the text unchanged, when the bytes are not valid
  /// in the encoding.
  KStatus set(const char* narrow);
  KStatus setUTF8(const char* utf8);

  /// Characters `first` to `last`, both included, counted from 0; out-of-range ends are cut off,
  /// and an empty range gives an empty string.
  KString substring(int first, int last) const;

  /// Replaces this string by `format` with `^1s` to `^10s` replaced by the arguments. `format` and
  /// the arguments may be this very string. A position whose argument is `argUnused` stays as it
  /// stands in the format, and so does a `^` that begins no position.
  KStatus format(const KString& format, const KString& arg1, const KString& arg2,
                 const KString& arg3, const KString& arg4, const KString& arg5, const KString& arg6,
                 const KString& arg7, const KString& arg8, const KString& arg9,
                 const KString& arg10);

  /// Fills the positions of `format` that have no argument.
  static const KString argUnused;

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_ = nullptr;
};

VESK_API_CLOSE
