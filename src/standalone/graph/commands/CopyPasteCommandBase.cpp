#include "platform/ORV_1_0/CopyPasteCommandBase.h"

#include "standalone/graph/clipboard/Clipboard.h"

namespace ORV_v1 {

void CopyPasteCommandBase::setUseLocalClipboard(bool local) { orvlib::Clipboard::setLocal(local); }

}  // namespace ORV_v1
