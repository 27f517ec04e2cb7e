#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/standalone/graph/RuntimeFolder.h"

namespace {

using testing::StartsWith;

/// What is told of a library file that holds these bytes.
orvlib::Diagnostic diagnosticOf(const std::string& bytes) {
  RuntimeFolder folder;
  folder.write("core.yaml", bytes);
  folder.load();
  return folder.diagnostics.empty() ? orvlib::Diagnostic{} : folder.diagnostics[0];
}

std::string repeated(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

constexpr const char* kGood = "library: core\nniceName: Core\ndescription: Text.\n";

TEST(DefinitionFile, AnEmptyFileIsTold) {
  EXPECT_EQ(diagnosticOf("").reason, "the file is empty");
  EXPECT_EQ(diagnosticOf("# only a comment\n").reason, "the file is empty");
}

TEST(DefinitionFile, BinaryBytesAreToldWithTheirPlace) {
  const auto told = diagnosticOf(std::string("library: core\nnice\0Name", 22));
  EXPECT_EQ(told.reason, "this is not UTF-8 text");
  EXPECT_EQ(told.line, 2);
  EXPECT_EQ(told.column, 5);
}

TEST(DefinitionFile, BytesThatAreNoUtf8AreTold) {
  for (const char* bytes : {"\xff\xfe", "a: \xe4 b", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80",
                            "\xe0\x80\x80", "\xf0\x80\x80\x80", "\xe4", "\x7f"}) {
    EXPECT_EQ(diagnosticOf(bytes).reason, "this is not UTF-8 text");
  }
}

TEST(DefinitionFile, TextOfEveryScriptIsRead) {
  EXPECT_EQ(
      diagnosticOf("library: core\nniceName: \u00c4 \u20ac \U0001f600\ndescription: T.\n").reason,
      "");
}

TEST(DefinitionFile, WindowsLineEndsAndAByteOrderMarkAreRead) {
  EXPECT_EQ(diagnosticOf("\xef\xbb\xbflibrary: core\r\nniceName: A\r\ndescription: T.\r\n").reason,
            "");
}

TEST(DefinitionFile, BrokenYamlIsToldWithItsPlace) {
  const auto told = diagnosticOf("library: core\nnodes: [a, b\n");
  EXPECT_THAT(told.reason, StartsWith("not valid YAML: "));
  EXPECT_EQ(told.line, 3);
}

TEST(DefinitionFile, AnchorsAreToldWithTheirPlace) {
  const auto told = diagnosticOf("library: &name core\n");
  EXPECT_EQ(told.reason, "anchors are not allowed in a definition file");
  EXPECT_EQ(told.line, 1);
}

TEST(DefinitionFile, AnAliasToNothingIsNotValid) {
  EXPECT_THAT(diagnosticOf("library: *name\n").reason, StartsWith("not valid YAML: "));
}

TEST(DefinitionFile, TagsAreToldWithTheirPlace) {
  EXPECT_EQ(diagnosticOf("a: 1\nlibrary: !x core\n").reason, "the tag '!x' is not allowed");
}

TEST(DefinitionFile, ASecondDocumentIsTold) {
  const auto told = diagnosticOf(std::string(kGood) + "---\n" + kGood);
  EXPECT_EQ(told.reason, "the file holds more than one YAML document");
  EXPECT_EQ(told.line, 4);
}

TEST(DefinitionFile, AKeyThatIsNoWordIsTold) {
  EXPECT_EQ(diagnosticOf("? [a, b]\n: c\n").reason, "a key must be a word");
}

TEST(DefinitionFile, DeepNestingIsTold) {
  EXPECT_EQ(diagnosticOf(repeated("[", 17) + repeated("]", 17)).reason,
            "values are nested too deeply");
}

TEST(DefinitionFile, NestingWithoutEndIsTold) {
  EXPECT_EQ(diagnosticOf(repeated("[", 100000)).reason, "values are nested too deeply");
  EXPECT_EQ(diagnosticOf(repeated("{a: ", 100000)).reason, "values are nested too deeply");
  EXPECT_EQ(diagnosticOf(repeated("- ", 20000)).reason, "values are nested too deeply");
}

TEST(DefinitionFile, AMappingOfVeryManyKeysIsTold) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "key" + std::to_string(i) + ": 1\n";
  const auto told = diagnosticOf(text);
  EXPECT_EQ(told.reason, "a mapping has too many keys");
  EXPECT_EQ(told.line, 33);
}

TEST(DefinitionFile, AHugeFileIsTold) {
  const auto told = diagnosticOf(kGood + std::string(4 * 1024 * 1024, '#'));
  EXPECT_EQ(told.reason, "the file is larger than 4 MiB");
  EXPECT_EQ(told.line, 0);
}

TEST(DefinitionFile, AFolderInPlaceOfAFileIsTold) {
  RuntimeFolder folder;
  std::filesystem::create_directory(folder.path() / "core.yaml");
  folder.load();
  EXPECT_EQ(folder.diagnostics.at(0).reason, "this is not a regular file");
}

TEST(DefinitionFile, AFileThatCannotBeReadIsTold) {
  RuntimeFolder folder;
  std::filesystem::create_symlink("nowhere", folder.path() / "core.yaml");
  folder.load();
  EXPECT_EQ(folder.diagnostics.at(0).reason, "the file cannot be read: No such file or directory");
}

TEST(DefinitionFile, EveryPrefixOfAGoodFileIsReadOrTold) {
  const std::string text =
      std::string(kGood) + "nodes:\n  - {name: a, niceName: \"A\", description: 'T.'}\n";
  for (std::size_t length = 0; length < text.size(); ++length) {
    RuntimeFolder folder;
    folder.write("core.yaml", text.substr(0, length));
    const auto runtime = folder.load();
    EXPECT_NE(folder.diagnostics.empty(), runtime->findLibrary("core") == nullptr) << length;
  }
}

TEST(Diagnostic, ReadsAsFileLineColumnAndReason) {
  EXPECT_EQ((orvlib::Diagnostic{"a.yaml", 3, 7, "wrong"}.toText()), "a.yaml:3:7: wrong");
}

TEST(Diagnostic, LeavesThePlaceOutWhenTheWholeFileIsMeant) {
  EXPECT_EQ((orvlib::Diagnostic{"a.yaml", 0, 0, "wrong"}.toText()), "a.yaml: wrong");
}

}  // namespace
