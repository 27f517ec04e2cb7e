#include "standalone/vesk/Console.h"

#include <ostream>

namespace vesk {

void Console::message(const Message& message) {
  switch (message.kind) {
    case MessageKind::Print:
      out_ << message.text << '\n';
      break;
    case MessageKind::Error:
      out_.flush(), err_ << "Error: " << message.text << std::endl;
      break;
    case MessageKind::Warning:
      out_.flush(), err_ << "Warning: " << message.text << std::endl;
      break;
    case MessageKind::Echo:
      break;
  }
}

void Console::lineEnded(const ResultValue& result, KStatus) {
  if (!hasResult(result)) return;
  const auto* texts = std::get_if<std::vector<std::string>>(&result);
  if (texts && texts->empty()) return;
  out_ << toText(result) << '\n';
}

}  // namespace vesk
