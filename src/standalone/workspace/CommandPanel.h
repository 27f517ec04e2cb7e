#pragma once

#include <QWidget>

#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/Observers.h"

namespace vesk {

class CommandInput;
class CommandLog;
class HostSession;

/// A log of all lines that run, with their results and messages, above a line to type.
class CommandPanel final : public QWidget {
 public:
  /// `session` outlives the panel.
  explicit CommandPanel(HostSession& session);
  ~CommandPanel() override;

 private:
  void hear(const Message& message);
  void runLines(const QString& text);

  HostSession& session_;
  CommandLog* log_;
  CommandInput* input_;
  MessageChannel::SinkId sink_;
  Observation results_;
  bool toldError_ = false;  ///< of the line that is running
};

}  // namespace vesk
