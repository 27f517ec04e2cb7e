#pragma once

#include <iosfwd>
#include <string_view>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/ResultValue.h"

namespace vesk {

/// Who hears what happens while lines run. The methods are called in the order of events.
class LineListener {
 public:
  virtual ~LineListener() = default;
  virtual void lineBegins(std::string_view line) = 0;
  virtual void message(const Message& message) = 0;
  virtual void lineEnded(const ResultValue& result, KStatus status) = 0;
};

/// Shows results and prints on one stream, errors and warnings on the other.
class Console : public LineListener {
 public:
  Console(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

  void lineBegins(std::string_view) override {}
  void message(const Message& message) override;
  void lineEnded(const ResultValue& result, KStatus status) override;

 private:
  std::ostream& out_;
  std::ostream& err_;
};

}  // namespace vesk
