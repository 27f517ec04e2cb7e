#include "standalone/widgets/compound/input/Shortcuts.h"
#include "testPaths.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QKeySequence>
#include <QSet>

using namespace orvuilib;

namespace {

TEST(Shortcuts, EveryKeyOfTheTableDoesWhatItsRowSays) {
  for (const ShortcutRow& row : shortcutTable()) {
    for (const QString& text : keysOf(row)) {
      const QKeyCombination keys = QKeySequence(text, QKeySequence::PortableText)[0];
      EXPECT_NE(keys.key(), Qt::Key_unknown) << text.toStdString();
      EXPECT_EQ(actionFor(keys.key(), keys.keyboardModifiers()), row.action) << text.toStdString();
    }
  }
}

TEST(Shortcuts, NoKeyStandsTwice) {
  QSet<QString> keys;
  for (const ShortcutRow& row : shortcutTable()) {
    for (const QString& text : keysOf(row)) {
      EXPECT_FALSE(keys.contains(text)) << text.toStdString();
      keys.insert(text);
    }
  }
}

TEST(Shortcuts, ShiftIsNotAskedForWhereItMakesTheCharacter) {
  EXPECT_EQ(actionFor(Qt::Key_Question, Qt::ShiftModifier), Action::Help);
  EXPECT_EQ(actionFor(Qt::Key_Plus, Qt::KeypadModifier), Action::ZoomIn);
  EXPECT_EQ(actionFor(Qt::Key_A, Qt::AltModifier), std::nullopt);
}

TEST(Shortcuts, TheDocumentationHasTheSameTable) {
  QFile file(VESK_SOURCE_DIR "/docs/editors.md");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString page = QString::fromUtf8(file.readAll());
  for (const ShortcutRow& row : shortcutTable()) {
    QStringList keys;
    for (const QString& text : keysOf(row)) keys.append('`' + text + '`');
    const QString line =
        QStringLiteral("| %1 | %2 |\n").arg(keys.join(", "), QString::fromLatin1(row.text));
    EXPECT_TRUE(page.contains(line)) << line.toStdString();
  }
  for (const MouseRow& row : mouseTable()) {
    const QString line = QStringLiteral("| %1 | %2 |\n")
                             .arg(QString::fromLatin1(row.gesture), QString::fromLatin1(row.text));
    EXPECT_TRUE(page.contains(line)) << line.toStdString();
  }
}

}  // namespace
