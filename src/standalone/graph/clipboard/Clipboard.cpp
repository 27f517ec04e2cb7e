#include "standalone/graph/clipboard/Clipboard.h"

namespace orvlib {
namespace {

struct State {
  SystemClipboard* system = nullptr;
  bool local = false;
  std::string text;
  PrivateClipboard* innermost = nullptr;

  SystemClipboard* inUse() const { return local ? nullptr : system; }
};

State& state() {
  static State only;
  return only;
}

}  // namespace

SystemClipboard::~SystemClipboard() = default;

void Clipboard::install(SystemClipboard* system) { state().system = system; }

void Clipboard::setLocal(bool local) { state().local = local; }

bool Clipboard::setText(std::string text) {
  if (PrivateClipboard* own = state().innermost) {
    own->text_ = std::move(text);
    return true;
  }
  if (SystemClipboard* system = state().inUse()) return system->setText(text);
  state().text = std::move(text);
  return true;
}

std::string Clipboard::text() {
  if (const PrivateClipboard* own = state().innermost) return own->text_;
  const SystemClipboard* system = state().inUse();
  return system ? system->text() : state().text;
}

PrivateClipboard::PrivateClipboard() : outer_(state().innermost) { state().innermost = this; }

PrivateClipboard::~PrivateClipboard() { state().innermost = outer_; }

}  // namespace orvlib
