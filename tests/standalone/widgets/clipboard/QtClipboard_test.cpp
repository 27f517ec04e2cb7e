#include "standalone/widgets/clipboard/QtClipboard.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>
#include <optional>

#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/ORV_1_0/PasteCommand.h"
#include "standalone/graph/storage/GraphText.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace {

using orvlib::Clipboard;
using orvuilib::QtClipboard;
using testing::HasSubstr;

/// A graph with the nodes "a" and "b", the one connected to the other, and the compound "group".
class QtClipboardTest : public orvlib::GraphFixture {
 protected:
  QtClipboardTest() {
    add(top(), "core::math::negate", "a");
    add(top(), "core::math::negate", "b");
    addCompound(top(), "group");
    EXPECT_TRUE(connect("/a.result", "/b.value"));
    system().clear();
  }
  ~QtClipboardTest() override { system().clear(); }

  static QClipboard& system() { return *QGuiApplication::clipboard(); }

  bool copy() {
    ORV_v1::CopyCommand command;
    EXPECT_TRUE(command.setParentCompound(&graph_, "/"));
    EXPECT_TRUE(command.addSourceNode("a"));
    EXPECT_TRUE(command.addSourceNode("b"));
    return command.doit();
  }
  bool paste() {
    ORV_v1::PasteCommand command;
    EXPECT_TRUE(command.setParentCompound(&graph_, "/group"));
    return command.doit();
  }

  /// Whether a paste does nothing and says so.
  bool pastesNothing() {
    const std::string before = orvlib::writeGraph(graph_);
    return !paste() && orvlib::writeGraph(graph_) == before;
  }

  std::unique_ptr<QtClipboard> clipboard = std::make_unique<QtClipboard>();
};

TEST_F(QtClipboardTest, APrivateOneLeavesItAsItIs) {
  system().setText("something else");
  {
    const orvlib::PrivateClipboard own;
    EXPECT_TRUE(pastesNothing()) << "nothing was copied to it";
    ASSERT_TRUE(copy());
    EXPECT_TRUE(paste());
    const orvlib::PrivateClipboard inner;
    EXPECT_EQ(Clipboard::text(), "");
  }
  EXPECT_EQ(system().text(), QString("something else"));
  EXPECT_EQ(Clipboard::text(), "something else");
}

TEST_F(QtClipboardTest, HoldsACopyAsItsOwnFormatAndAsPlainText) {
  ASSERT_TRUE(copy());
  const QMimeData* data = system().mimeData();
  EXPECT_TRUE(data->hasFormat(QtClipboard::kMimeType));
  EXPECT_TRUE(data->hasText());
  EXPECT_EQ(data->data(QtClipboard::kMimeType), data->text().toUtf8());
  EXPECT_THAT(data->text().toStdString(), HasSubstr("core::math::negate"));
}

TEST_F(QtClipboardTest, PastesACopy) {
  ASSERT_TRUE(copy());
  ASSERT_TRUE(paste());
  EXPECT_TRUE(graph_.findNode("/group/b"));
  EXPECT_EQ(port("/group/b.value")->source(), port("/group/a.result"));
}

TEST_F(QtClipboardTest, PastesPlainTextOfAnotherProgram) {
  ASSERT_TRUE(copy());
  const QString text = system().text();
  system().setText(text);
  ASSERT_FALSE(system().mimeData()->hasFormat(QtClipboard::kMimeType));
  EXPECT_TRUE(paste());
  EXPECT_TRUE(graph_.findNode("/group/b"));
}

TEST_F(QtClipboardTest, PastesTextWhoseLineEndsWereChanged) {
  ASSERT_TRUE(copy());
  system().setText(system().text().replace("\n", "\r\n"));
  ASSERT_TRUE(paste());
  EXPECT_EQ(port("/group/b.value")->source(), port("/group/a.result"));
}

TEST_F(QtClipboardTest, ItsOwnFormatComesFirst) {
  ASSERT_TRUE(copy());
  auto* data = new QMimeData;
  data->setData(QtClipboard::kMimeType, system().mimeData()->data(QtClipboard::kMimeType));
  data->setText("something else");
  system().setMimeData(data);
  EXPECT_TRUE(paste());
}

TEST_F(QtClipboardTest, ItsOwnFormatIsTakenAsItIs) {
  auto* data = new QMimeData;
  data->setData(QtClipboard::kMimeType, "a\r\nb");
  system().setMimeData(data);
  EXPECT_EQ(clipboard->text(), "a\r\nb");
}

TEST_F(QtClipboardTest, ForeignTextPastesNothing) {
  for (const char* text : {"", "a recipe", "{}", "vesk", "node a core::math::negate", "\n\n"}) {
    system().setText(text);
    EXPECT_TRUE(pastesNothing()) << text;
  }
}

TEST_F(QtClipboardTest, NothingPastesNothing) {
  system().clear();
  EXPECT_EQ(clipboard->text(), "");
  EXPECT_TRUE(pastesNothing());
}

TEST_F(QtClipboardTest, APictureAloneIsNoText) {
  auto* data = new QMimeData;
  data->setData("image/png", "\x89PNG");
  system().setMimeData(data);
  EXPECT_EQ(clipboard->text(), "");
}

TEST_F(QtClipboardTest, DamagedTextPastesNothing) {
  ASSERT_TRUE(copy());
  const QString whole = system().text();
  for (const int length : {1, 5, 12, 40, int(whole.size() / 2), int(whole.size()) - 6}) {
    system().setText(whole.left(length));
    EXPECT_TRUE(pastesNothing()) << length;
  }
  system().setText(whole.mid(3));
  EXPECT_TRUE(pastesNothing());
  system().setText("x" + whole);
  EXPECT_TRUE(pastesNothing());
}

TEST_F(QtClipboardTest, DamagedDataOfItsOwnFormatPastesNothing) {
  for (const QByteArray& bytes : {QByteArray(), QByteArray("\xff\xfe\x00\x01", 4),
                                  QByteArray(100000, '\0'), QByteArray("vesk")}) {
    auto* data = new QMimeData;
    data->setData(QtClipboard::kMimeType, bytes);
    system().setMimeData(data);
    EXPECT_TRUE(pastesNothing()) << bytes.size();
  }
}

TEST_F(QtClipboardTest, KeepsEveryText) {
  for (const std::string text : {"", "a\tb\nc", "Größe 数据 🙂", "\x01\x7f"}) {
    EXPECT_TRUE(clipboard->setText(text)) << text;
    EXPECT_EQ(clipboard->text(), text);
  }
  const std::string large(5'000'000, 'n');
  EXPECT_TRUE(clipboard->setText(large));
  EXPECT_EQ(clipboard->text(), large);
}

TEST_F(QtClipboardTest, IsTheLibrarysUntilItGoes) {
  Clipboard::setText("shared");
  EXPECT_EQ(system().text(), "shared");
  clipboard.reset();
  Clipboard::setText("own");
  EXPECT_EQ(system().text(), "shared");
  EXPECT_EQ(Clipboard::text(), "own");
}

TEST_F(QtClipboardTest, LeavesTheWindowSystemsAloneInLocalMode) {
  system().setText("untouched");
  Clipboard::setLocal(true);
  EXPECT_TRUE(copy());
  EXPECT_EQ(system().text(), "untouched");
  EXPECT_TRUE(paste());
  Clipboard::setLocal(false);
}

}  // namespace
