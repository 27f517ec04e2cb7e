#include "tests/support/HostTest.h"

namespace hosttest {

Host::Host(vesk::SessionOptions options) {
  options.messages = [this](const vesk::Message& message) { hear(message); };
  session_ = std::make_unique<vesk::HostSession>(std::move(options));
}

Host::~Host() {
  session_.reset();
  EXPECT_THAT(messages_, ::testing::IsEmpty()) << "messages that the test did not expect";
}

std::string Host::run(std::string_view line) {
  vesk::ResultValue result;
  EXPECT_EQ(session_->runLine(line, result).statusCode(), StatusSuccess) << line;
  return vesk::toJson(result);
}

Texts Host::refusal(std::string_view line) {
  EXPECT_NE(status(line), StatusSuccess) << line;
  return takeMessages();
}

KStatusCode Host::status(std::string_view line) {
  vesk::ResultValue result;
  return session_->runLine(line, result).statusCode();
}

void Host::hear(const vesk::Message& message) {
  const std::string text(message.text);
  switch (message.kind) {
    case vesk::MessageKind::Error:
      messages_.push_back("! " + text);
      break;
    case vesk::MessageKind::Warning:
      messages_.push_back("? " + text);
      break;
    case vesk::MessageKind::Print:
      messages_.push_back("- " + text);
      break;
    case vesk::MessageKind::Echo:
      echoes_.push_back(text);
  }
}

}  // namespace hosttest
