#include "standalone/host/engine/OptionVariables.h"

#include <QDir>
#include <QFileInfo>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <limits>
#include <thread>

#include "tests/standalone/host/scene/SceneTools.h"
#include "tests/support/Unprivileged.h"

namespace vesk {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using vesk::testing::MessageLog;
using vesk::testing::readFile;
using vesk::testing::TemporaryFolder;
using vesk::testing::writeFile;
using namespace std::chrono_literals;
using Value = OptionVariables::Value;

bool exists(const std::string& path) { return QFileInfo::exists(QString::fromStdString(path)); }

class OptionVariableFile : public ::testing::Test {
 protected:
  std::unique_ptr<OptionVariables> open(std::chrono::milliseconds interval = 0ms) {
    return std::make_unique<OptionVariables>(folder_.path("prefs"), messages_, interval);
  }

  /// The value as another session finds it.
  Value roundTrip(const Value& value) {
    open()->set("v", value);
    const auto again = open();
    const Value* found = again->find("v");
    return found ? *found : Value("not found");
  }

  void writeVariables(std::string_view text) {
    QDir().mkpath(QString::fromStdString(folder_.path("prefs")));
    writeFile(path_, text);
  }

  TemporaryFolder folder_;
  const std::string path_ = folder_.path("prefs/optionVars.json");
  MessageChannel messages_;
  MessageLog log_{messages_};
};

TEST_F(OptionVariableFile, ValuesAreFoundByTheNextSession) {
  {
    const auto variables = open();
    variables->set("i", 7);
    variables->set("f", 0.5);
    variables->set("s", std::string("text"));
  }
  const auto variables = open();
  EXPECT_THAT(variables->names(), ElementsAre("f", "i", "s"));
  EXPECT_EQ(*variables->find("i"), Value(7));
  EXPECT_EQ(*variables->find("f"), Value(0.5));
  EXPECT_EQ(*variables->find("s"), Value("text"));
  EXPECT_EQ(variables->find("x"), nullptr);
}

TEST_F(OptionVariableFile, WholeNumbersKeepAllTheirBits) {
  for (const int value :
       {std::numeric_limits<int>::min(), -1, 0, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(roundTrip(value), Value(value));
  }
}

TEST_F(OptionVariableFile, FloatsComeBackExactlyAndAsFloats) {
  for (const double value :
       {0.1, 3.0, -1e300, 5e-324, 0.1 + 0.2, 1.0 / 3, std::numeric_limits<double>::max(),
        std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(roundTrip(value), Value(value));
  }
  EXPECT_TRUE(std::signbit(std::get<double>(roundTrip(-0.0))));
}

TEST_F(OptionVariableFile, TextsKeepEveryCharacter) {
  for (const char* text : {"", "Größe 木 🍎", "\"a\\b\"\n\t\r", "{\"json\":[1]}"}) {
    EXPECT_EQ(roundTrip(std::string(text)), Value(text));
  }
}

TEST_F(OptionVariableFile, AChangedValueMayChangeItsType) {
  EXPECT_EQ(roundTrip(1), Value(1));
  EXPECT_EQ(roundTrip(std::string("one")), Value("one"));
}

TEST_F(OptionVariableFile, NamesAreSortedAndMayBeAnyText) {
  const auto variables = open();
  for (const char* name : {"z", "Größe", "a b", "A"}) variables->set(name, 1);
  variables->saveIfChanged();
  EXPECT_THAT(open()->names(), ElementsAre("A", "Größe", "a b", "z"));
}

TEST_F(OptionVariableFile, ARemovedValueIsGone) {
  open()->set("v", 1);
  EXPECT_TRUE(open()->remove("v"));
  EXPECT_FALSE(open()->remove("v"));
  EXPECT_EQ(open()->find("v"), nullptr);
}

TEST_F(OptionVariableFile, TheFolderIsMadeForTheFirstChange) {
  const auto variables = open();
  variables->find("v");
  variables->saveIfChanged();
  EXPECT_FALSE(exists(folder_.path("prefs")));
  variables->set("v", 1);
  variables->saveIfChanged();
  EXPECT_TRUE(exists(path_));
}

TEST_F(OptionVariableFile, IsNotWrittenWhenItHoldsTheValuesAlready) {
  open()->set("v", 0.0);
  const std::filesystem::file_time_type longAgo{};
  std::filesystem::last_write_time(path_, longAgo);
  EXPECT_TRUE(open()->set("v", 0.0));
  EXPECT_EQ(std::filesystem::last_write_time(path_), longAgo);
  EXPECT_TRUE(open()->set("v", -0.0));
  EXPECT_NE(std::filesystem::last_write_time(path_), longAgo);
}

TEST_F(OptionVariableFile, TheSameValuesGiveTheSameBytes) {
  const auto variables = open();
  variables->set("b", 1);
  variables->set("a", 2.5);
  variables->saveIfChanged();
  const std::string first = readFile(path_);
  variables->remove("b");
  variables->set("b", 1);
  variables->saveIfChanged();
  EXPECT_EQ(readFile(path_), first);
}

TEST_F(OptionVariableFile, WithoutAFolderValuesLiveInMemory) {
  OptionVariables variables("", messages_);
  variables.set("v", 1);
  variables.saveIfChanged();
  EXPECT_EQ(*variables.find("v"), Value(1));
  EXPECT_FALSE(exists("/optionVars.json"));
}

struct Damage {
  std::string text;
  std::string reason;
};

class DamagedOptionVariableFile : public OptionVariableFile,
                                  public ::testing::WithParamInterface<Damage> {};

TEST_P(DamagedOptionVariableFile, IsMovedAsideAndReported) {
  writeVariables(GetParam().text);
  {
    const auto variables = open();
    EXPECT_THAT(variables->names(), IsEmpty());
    EXPECT_THAT(log_.take(),
                ElementsAre(AllOf(HasSubstr("? "), HasSubstr(path_), HasSubstr(GetParam().reason),
                                  HasSubstr(path_ + ".damaged"))));
    variables->set("v", 1);
  }
  EXPECT_EQ(readFile(path_ + ".damaged"), GetParam().text);
  EXPECT_EQ(*open()->find("v"), Value(1));
}

std::string withValue(const std::string& value) {
  return "{\"version\": 1, \"variables\": {\"fine\": {\"type\": \"int\", \"value\": 1}, \"v\": " +
         value + "}}";
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedOptionVariableFile,
    ::testing::Values(
        Damage{"", "line 1, column 1: "}, Damage{"\n{\"a\" 1}", "line 2, column "},
        Damage{"[1]", "it holds no JSON object"}, Damage{"{}", "\"version\" is missing"},
        Damage{"{\"version\": 1}", "\"variables\" is missing"},
        Damage{"{\"version\": 1, \"variables\": []}", "\"variables\" is missing or no object"},
        Damage{withValue("3"), "the variable \"v\""}, Damage{withValue("{}"), "\"v\""},
        Damage{withValue("{\"type\": \"int\"}"), "\"v\""},
        Damage{withValue("{\"type\": \"other\", \"value\": 1}"), "\"v\""},
        Damage{withValue("{\"type\": \"int\", \"value\": \"1\"}"), "\"v\""},
        Damage{withValue("{\"type\": \"int\", \"value\": 1.5}"), "\"v\""},
        Damage{withValue("{\"type\": \"int\", \"value\": 2147483648}"), "\"v\""},
        Damage{withValue("{\"type\": \"int\", \"value\": 1e300}"), "\"v\""},
        Damage{withValue("{\"type\": \"float\", \"value\": 1.5}"), "\"v\""},
        Damage{withValue("{\"type\": \"float\", \"value\": \"\"}"), "\"v\""},
        Damage{withValue("{\"type\": \"float\", \"value\": \"1.5x\"}"), "\"v\""},
        Damage{withValue("{\"type\": \"string\", \"value\": 1}"), "\"v\""}));

TEST_F(OptionVariableFile, CutOffAtAnyByteIsNeverHalfRead) {
  {
    const auto variables = open();
    variables->set("a", 1);
    variables->set("b", std::string("two"));
  }
  const std::string whole = readFile(path_);
  for (std::size_t size = 0; size + 1 < whole.size(); ++size) {  // the last byte is a line end
    writeVariables(whole.substr(0, size));
    ASSERT_THAT(open()->names(), IsEmpty()) << "at byte " << size;
    ASSERT_EQ(log_.take().size(), 1u) << "at byte " << size;
    ASSERT_FALSE(exists(path_)) << "at byte " << size;
  }
}

TEST_F(OptionVariableFile, DamagedFilesDoNotReplaceOneAnother) {
  for (const char* text : {"first", "second", "third"}) {
    writeVariables(text);
    open()->names();
  }
  EXPECT_EQ(log_.take().size(), 3u);
  EXPECT_EQ(readFile(path_ + ".damaged"), "first");
  EXPECT_EQ(readFile(path_ + ".damaged1"), "second");
  EXPECT_EQ(readFile(path_ + ".damaged2"), "third");
}

TEST_F(OptionVariableFile, ThatCannotBeReadIsLeftAlone) {
  QDir().mkpath(QString::fromStdString(path_));  // a folder of that name
  const auto variables = open();
  const std::string error =
      "! the option variables in " + vesk::quoted(path_) + " cannot be read: it is a folder";
  EXPECT_FALSE(variables->read());
  EXPECT_FALSE(variables->set("v", 1));
  EXPECT_THAT(log_.take(), ElementsAre(error, error));
  EXPECT_EQ(variables->find("v"), nullptr);
  EXPECT_TRUE(QFileInfo(QString::fromStdString(path_)).isDir());
}

TEST_F(OptionVariableFile, ThatCannotBeReadIsToldOnceToThoseWhoOnlyLook) {
  QDir().mkpath(QString::fromStdString(path_));
  const auto variables = open();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(variables->find("v"), nullptr);
  EXPECT_THAT(variables->names(), IsEmpty());
  EXPECT_EQ(log_.take().size(), 1u);
}

TEST_F(OptionVariableFile, IsReadWhenItComesIntoReach) {
  open()->set("v", 1);
  const auto variables = open();
  {
    const Unprivileged user;
    EXPECT_FALSE(variables->read());
    EXPECT_THAT(log_.take(), ElementsAre(HasSubstr("cannot be read: Permission denied")));
  }
  EXPECT_TRUE(variables->read());
  EXPECT_EQ(*variables->find("v"), Value(1));
}

TEST_F(OptionVariableFile, ThatIsADeviceIsNotRead) {
  QDir().mkpath(QString::fromStdString(folder_.path("prefs")));
  std::filesystem::create_symlink("/dev/null", path_);
  EXPECT_FALSE(open()->set("v", 1));
  EXPECT_THAT(log_.take(), ElementsAre(HasSubstr("it is no regular file")));
  EXPECT_TRUE(std::filesystem::is_symlink(path_));
}

TEST_F(OptionVariableFile, OfANewerFormatIsLeftAlone) {
  const std::string text = "{\"version\": 2, \"variables\": {}}";
  writeVariables(text);
  EXPECT_FALSE(open()->set("v", 1));
  EXPECT_THAT(log_.take(), ElementsAre(HasSubstr("its format version is not 1")));
  EXPECT_EQ(readFile(path_), text);
}

class UnwritableOptionVariableFile : public OptionVariableFile {
 protected:
  void blockFolder() { writeFile(folder_.path("prefs"), "a file where the folder should be"); }
  void unblockFolder() { QFile::remove(QString::fromStdString(folder_.path("prefs"))); }

  const std::string error_ = "! option variables cannot be saved in " + vesk::quoted(path_) +
                             ": the folder cannot be made";
};

TEST_F(UnwritableOptionVariableFile, RefusesAValueAndKeepsTheOldOne) {
  const auto variables = open();
  EXPECT_TRUE(variables->set("old", 1));
  std::filesystem::remove_all(folder_.path("prefs"));
  blockFolder();
  EXPECT_FALSE(variables->set("old", 2));
  EXPECT_FALSE(variables->set("new", 2));
  EXPECT_FALSE(variables->remove("old"));
  EXPECT_THAT(log_.take(), ElementsAre(error_, error_, error_));
  EXPECT_EQ(*variables->find("old"), Value(1));
  EXPECT_EQ(variables->find("new"), nullptr);
}

TEST_F(UnwritableOptionVariableFile, IsTriedForTheFirstValueAndAfterAFailure) {
  const auto variables = open(1h);
  blockFolder();
  EXPECT_FALSE(variables->set("v", 1));
  EXPECT_FALSE(variables->set("v", 2));
  EXPECT_THAT(log_.take(), ElementsAre(error_, error_));
  unblockFolder();
  EXPECT_TRUE(variables->set("v", 3));
  EXPECT_EQ(*open()->find("v"), Value(3));
}

TEST_F(UnwritableOptionVariableFile, IsToldOnceForValuesThatWereTaken) {
  const auto variables = open(1h);
  EXPECT_TRUE(variables->set("a", 1));
  EXPECT_TRUE(variables->set("b", 2));
  std::filesystem::remove_all(folder_.path("prefs"));
  blockFolder();
  variables->saveIfChanged();
  variables->saveIfChanged();
  EXPECT_THAT(log_.take(), ElementsAre(error_));
  unblockFolder();
  variables->saveIfChanged();
  EXPECT_EQ(*open()->find("b"), Value(2));
}

TEST_F(OptionVariableFile, IsSavedOnceInAnIntervalWhileLinesRun) {
  const auto variables = open(1h);
  for (int i = 1; i <= 3; ++i) {
    EXPECT_TRUE(variables->set("v", i));
    variables->saveSometimes();
  }
  EXPECT_EQ(*open()->find("v"), Value(1));
  variables->saveIfChanged();
  EXPECT_EQ(*open()->find("v"), Value(3));
}

TEST_F(OptionVariableFile, IsSavedBySaveSometimesWhenTheIntervalIsOver) {
  const auto variables = open(20ms);
  variables->set("v", 1);
  variables->set("v", 2);
  std::this_thread::sleep_for(21ms);
  variables->saveSometimes();
  EXPECT_EQ(*open()->find("v"), Value(2));
}

TEST_F(OptionVariableFile, KeepsWhatAnotherProgramChanged) {
  for (const char* name : {"mine", "theirs", "gone", "removed"}) open()->set(name, 1);
  const auto mine = open();
  mine->names();
  open()->set("theirs", 2);
  open()->set("added", 2);
  open()->remove("gone");
  EXPECT_TRUE(mine->set("mine", 2));
  EXPECT_TRUE(mine->remove("removed"));
  const auto after = open();
  EXPECT_THAT(after->names(), ElementsAre("added", "mine", "theirs"));
  EXPECT_EQ(mine->names(), after->names());
  for (const char* name : {"added", "mine", "theirs"}) EXPECT_EQ(*after->find(name), Value(2));
}

TEST_F(OptionVariableFile, TakesTheNewestWhereTwoProgramsSetTheSameName) {
  const auto one = open();
  const auto other = open();
  one->set("v", 1);
  other->set("v", 2);
  one->set("w", 1);
  EXPECT_EQ(*one->find("v"), Value(2));
  one->set("v", 1);
  EXPECT_EQ(*open()->find("v"), Value(1));
}

TEST_F(OptionVariableFile, LosesNothingWhenManyProgramsWriteAtOnce) {
  constexpr int kPrograms = 4;
  constexpr int kNames = 10;
  std::vector<std::thread> programs;
  for (int program = 0; program < kPrograms; ++program) {
    programs.emplace_back([&, program] {
      MessageChannel messages;
      OptionVariables variables(folder_.path("prefs"), messages, 0ms);
      for (int i = 0; i < kNames; ++i) {
        EXPECT_TRUE(variables.set(std::to_string(program) + "." + std::to_string(i), i));
      }
    });
  }
  for (std::thread& program : programs) program.join();
  EXPECT_EQ(open()->names().size(), kPrograms * kNames);
}

TEST_F(OptionVariableFile, IsWrittenWholeWhenItIsGoneOrDamagedMeanwhile) {
  const auto variables = open();
  variables->set("a", 1);
  QFile::remove(QString::fromStdString(path_));
  variables->set("b", 1);
  EXPECT_THAT(open()->names(), ElementsAre("a", "b"));
  writeVariables("damaged");
  variables->set("c", 1);
  EXPECT_THAT(log_.take(), ElementsAre(HasSubstr("? the option variables in")));
  EXPECT_THAT(open()->names(), ElementsAre("a", "b", "c"));
}

TEST_F(OptionVariableFile, LeavesNoLockBehind) {
  open()->set("v", 1);
  const QDir folder(QString::fromStdString(folder_.path("prefs")));
  EXPECT_EQ(folder.entryList(QDir::Files | QDir::Hidden), QStringList{"optionVars.json"});
}

}  // namespace
}  // namespace vesk
