#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/clipboard/Clipboard.h"

namespace orvuilib {

/// The clipboard of the window system. A copy goes there as the format of its own and as plain
/// text, so that it can be sent as a message and pasted again. Needs a `QGuiApplication` that
/// outlives it.
class ORVUI_EXPORT QtClipboard final : public orvlib::SystemClipboard {
 public:
  /// The MIME type of a copy.
  static constexpr const char* kMimeType = "application/x-orv-graph";

  /// Becomes the graph library's clipboard, until it goes.
  QtClipboard();
  ~QtClipboard() override;

  /// False when the window system does not take it.
  bool setText(const std::string& text) override;

  /// What was copied as a graph, or else the plain text that is there.
  std::string text() const override;
};

}  // namespace orvuilib
