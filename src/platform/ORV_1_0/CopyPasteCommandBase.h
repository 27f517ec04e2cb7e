#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// What copying and pasting share: the clipboard of the program.
class ORV_EXPORT CopyPasteCommandBase {
 public:
  /// True: copies go to a clipboard of the library's own. False, the default: they go to the
  /// system's, where there is one.
  static void setUseLocalClipboard(bool local);

 protected:
  CopyPasteCommandBase() = default;
  ~CopyPasteCommandBase() = default;
};

}  // namespace ORV_v1
