#include "hook/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/host/language/Tokenizer.h"
#include "tests/support/Latin1Locale.h"

namespace {

std::string textOf(const CommandLine& line) { return line.toKString().asUTF8(); }

/// What the host reads where a line has this text.
std::string readBack(const QString& text) {
  CommandLine line("word");
  const vesk::TokenizedText read = vesk::tokenize(textOf(line.text(text)));
  EXPECT_FALSE(read.error) << text.toStdString();
  EXPECT_EQ(read.statements.size(), 1u);
  EXPECT_EQ(read.statements.at(0).tokens.size(), 2u);
  return read.statements.at(0).tokens.at(1).text;
}

TEST(CommandLine, PutsTokensApartByOneBlank) {
  CommandLine line("orvNode");
  line.text(QString("g")).text("/a").flag("-flag").boolean(true).boolean(false).number(42);
  EXPECT_EQ(textOf(line), R"(orvNode "g" "/a" -flag true false 42)");
}

TEST(CommandLine, WritesNumbersWithoutASign) {
  CommandLine line("word");
  EXPECT_EQ(textOf(line.number(0).number(4294967295u)), "word 0 4294967295");
}

TEST(CommandLine, KeepsEmptyTexts) {
  CommandLine line("word");
  EXPECT_EQ(textOf(line.text(QString()).text(QString("")).text("").text(nullptr)),
            R"(word "" "" "" "")");
}

TEST(CommandLine, ReadsNarrowTextAsUtf8) {
  CommandLine line("word");
  EXPECT_EQ(textOf(line.text("Größe 数据")), "word \"Größe 数据\"");
}

TEST(CommandLine, IsUtf8WhateverTheLocale) {
  const hosttest::Latin1Locale locale;
  CommandLine line("word");
  line.text(QString("Größe 数据")).text("Größe 数据").texts({"ö", "数"});
  EXPECT_EQ(textOf(line), "word \"Größe 数据\" \"Größe 数据\" \"{ö,数}\"");
}

TEST(CommandLine, JoinsListsIntoOneText) {
  EXPECT_EQ(textOf(CommandLine("w").texts({"a"})), R"(w "a")");
  EXPECT_EQ(textOf(CommandLine("w").texts({"a", "b c", "d"})), R"(w "{a,b c,d}")");
}

TEST(CommandLine, EscapesWhatAListEscapedOnceMore) {
  EXPECT_EQ(textOf(CommandLine("w").texts({"a,b", "{c}", "\"", "\\"})),
            R"(w "{a\\,b,\\{c\\},\",\\\\}")");
}

TEST(CommandLine, WritesPropertiesAsOneText) {
  ORV_v1::PropertyList list;
  ASSERT_TRUE(list.unserialize("{color=red,tags={a,b}}", ORV_v1::PropertyList::kSerializeAll));
  EXPECT_EQ(textOf(CommandLine("w").properties(list)), R"(w "{color=red,tags={a,b}}")");
}

TEST(EscapeForCommand, WritesFiveCharactersDifferently) {
  EXPECT_EQ(escapeForCommand("\t").toStdString(), "\\t");
  EXPECT_EQ(escapeForCommand("\n").toStdString(), "\\n");
  EXPECT_EQ(escapeForCommand("\r").toStdString(), "\\r");
  EXPECT_EQ(escapeForCommand("\"").toStdString(), "\\\"");
  EXPECT_EQ(escapeForCommand("\\").toStdString(), "\\\\");
}

TEST(EscapeForCommand, LeavesEveryOtherCharacter) {
  for (int code = 0; code <= 0xFFFF; ++code) {
    const QString text = QChar(code);
    if (QString("\t\n\r\"\\").contains(text)) continue;
    EXPECT_EQ(escapeForCommand(text), text) << code;
  }
}

TEST(EscapeForCommand, IsAppliedOnce) {
  EXPECT_EQ(escapeForCommand("a\\tb").toStdString(), "a\\\\tb");
  CommandLine line("w");
  EXPECT_EQ(textOf(line.text(QString("\\"))), R"(w "\\")");
}

TEST(EscapeForCommand, IsReadBackByTheHost) {
  for (const QString& text :
       {QString("a \"b\" 'c'"), QString("a\\b\\\\c\\"), QString("\t\n\r"), QString("\\t\\n"),
        QString("Größe"), QString("数据"), QString("🙂"), QString("\x01\x1b\x7f"),
        QString("-flag"), QString("a; b // c"), QString(), QString("  ")}) {
    EXPECT_EQ(readBack(text), text.toStdString());
  }
}

}  // namespace
