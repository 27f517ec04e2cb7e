#include "standalone/widgets/compound/parts/InlineEditor.h"

#include <QClipboard>

#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

class InlineEditorTest : public EditorTest {
 protected:
  InlineEditorTest() {
    add("core::math::add", "a", -300, -100);
    open();
  }

  void paste(const char* text) {
    QApplication::clipboard()->setText(QString::fromUtf8(text));
    QTest::keyClick(field(), Qt::Key_V, Qt::ControlModifier);
  }
};

TEST_F(InlineEditorTest, PastedLinesAreOneWhereTheFieldIsOne) {
  click(titleOf("a"));
  key(Qt::Key_F2);
  paste("one\r\n  two\nthree\n");
  EXPECT_EQ(field()->toPlainText(), "one two three");
  EXPECT_EQ(field()->blockCount(), 1);
  QTest::keyClick(field(), Qt::Key_Escape);
}

TEST_F(InlineEditorTest, ANoteTakesPastedLines) {
  key(Qt::Key_N, Qt::ShiftModifier);
  ASSERT_TRUE(field()->isVisible());
  paste("one\ntwo");
  EXPECT_EQ(field()->toPlainText(), "one\ntwo");
  QTest::keyClick(field(), Qt::Key_Escape);
  host.takeEchoes();
}

}  // namespace
