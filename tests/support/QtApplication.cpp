// Linked into a test program that makes widgets.

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

/// The one application of the program, gone ahead of what the program's end takes down.
class Application : public testing::Environment {
 public:
  void SetUp() override {
    application_ = std::make_unique<QApplication>(argc_, argv_);
    QApplication::setStyle(QStringLiteral("Fusion"));
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[5] = "test";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const auto* const kApplication = testing::AddGlobalTestEnvironment(new Application);

}  // namespace
