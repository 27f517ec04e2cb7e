// Which clipboard a copy chooses. The answer of the host is kept for the process, so each of these
// tests runs in a process of its own, which starts the test again from the beginning.

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "tests/commands/clipboard/ClipboardTesting.h"

namespace {

using orvlib::Clipboard;
using testing::ExitedWithCode;

/// Takes the place of the host's `about` and notes what it is asked.
class AskedAbout final : public KPxCommand {
 public:
  static KPxCommand* creator() { return new AskedAbout; }
  static KSyntax createSyntax() {
    KSyntax syntax;
    syntax.addFlag("-b", "-batch");
    return syntax;
  }

  KStatus doIt(const KArgList& args) override {
    const KArgDatabase db(createSyntax(), args);
    ++(db.isFlagSet("-b") ? askedForBatch : askedOtherwise);
    if (fails) return StatusFailure;
    setResult(static_cast<unsigned int>(answer));
    return StatusSuccess;
  }

  static inline int askedForBatch = 0;
  static inline int askedOtherwise = 0;
  static inline int answer = 1;
  static inline bool fails = false;
};

class CopyBatchTest : public ClipboardTest {
 protected:
  CopyBatchTest() {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    host.session().registry().remove("about", nullptr);
    addCommand("about", AskedAbout::creator, AskedAbout::createSyntax());
    Clipboard::install(&system);
    Clipboard::setLocal(false);
  }

  void copy() { host.run("orvCopy g \"/\" -src a"); }
  bool tookTheSystems() const { return system.held != "untouched"; }

  /// Ends the process that a test started, with a number as its answer.
  [[noreturn]] static void answer(int number) {
    std::fflush(nullptr);
    std::_Exit(number);
  }

  TrialClipboard system;
};

using CopyBatchDeathTest = CopyBatchTest;

TEST_F(CopyBatchDeathTest, TheHostIsAskedOnceForAllCopies) {
  EXPECT_EXIT(
      {
        for (int i = 0; i < 3; ++i) copy();
        answer(10 * AskedAbout::askedForBatch + AskedAbout::askedOtherwise);
      },
      ExitedWithCode(10), "");
}

TEST_F(CopyBatchDeathTest, TheHostIsNotAskedByALineThatGoesNoFurtherThanReading) {
  EXPECT_EXIT(
      {
        for (const char* line : {"orvCopy", "orvCopy g", "orvCopy nothing \"/\"",
                                 "orvCopy g /nothing", "orvCopy g \"/\" -nonsense"}) {
          host.refusal(line);
        }
        answer(AskedAbout::askedForBatch);
      },
      ExitedWithCode(0), "");
}

TEST_F(CopyBatchDeathTest, TheHostIsNotAskedByAPaste) {
  EXPECT_EXIT(
      {
        host.status("orvPaste g \"/\"");
        answer(AskedAbout::askedForBatch);
      },
      ExitedWithCode(0), "");
}

TEST_F(CopyBatchDeathTest, TheHostIsAskedByACopyThatThenFails) {
  EXPECT_EXIT(
      {
        const orvlib::ArmedFault armed("CopyCommand doit");
        host.status("orvCopy g \"/\"");
        copy();
        answer(AskedAbout::askedForBatch);
      },
      ExitedWithCode(1), "");
}

TEST_F(CopyBatchDeathTest, TheQuestionIsNoStepAndIsNotEchoed) {
  EXPECT_EXIT(
      {
        copy();
        const bool isStep = !host.steps().empty();
        const hosttest::Texts echoes = host.takeEchoes();
        const bool isEchoed = std::any_of(
            echoes.begin(), echoes.end(),
            [](const std::string& line) { return line.find("about") != std::string::npos; });
        answer(isStep || isEchoed);
      },
      ExitedWithCode(0), "");
}

TEST_F(CopyBatchDeathTest, InBatchACopyGoesToTheLibrarysOwn) {
  EXPECT_EXIT(
      {
        copy();
        answer(tookTheSystems());
      },
      ExitedWithCode(0), "");
}

TEST_F(CopyBatchDeathTest, OtherwiseACopyGoesToTheSystems) {
  EXPECT_EXIT(
      {
        AskedAbout::answer = 0;
        copy();
        answer(tookTheSystems());
      },
      ExitedWithCode(1), "");
}

TEST_F(CopyBatchDeathTest, OtherwiseACopyTurnsAwayFromTheLibrarysOwn) {
  EXPECT_EXIT(
      {
        AskedAbout::answer = 0;
        Clipboard::setLocal(true);
        copy();
        answer(tookTheSystems());
      },
      ExitedWithCode(1), "");
}

TEST_F(CopyBatchDeathTest, OnlyOneMeansBatch) {
  EXPECT_EXIT(
      {
        AskedAbout::answer = 2;
        copy();
        answer(tookTheSystems());
      },
      ExitedWithCode(1), "");
}

TEST_F(CopyBatchDeathTest, AHostThatDoesNotAnswerIsNotInBatch) {
  EXPECT_EXIT(
      {
        AskedAbout::fails = true;
        copy();
        answer(tookTheSystems());
      },
      ExitedWithCode(1), "");
}

TEST_F(CopyBatchDeathTest, TheFirstAnswerHoldsForTheProcess) {
  EXPECT_EXIT(
      {
        AskedAbout::answer = 0;
        copy();
        AskedAbout::answer = 1;
        system.held = "untouched";
        copy();
        answer(tookTheSystems());
      },
      ExitedWithCode(1), "");
}

TEST_F(CopyBatchDeathTest, EachCopyChoosesAgain) {
  EXPECT_EXIT(
      {
        copy();
        Clipboard::setLocal(false);
        copy();
        answer(tookTheSystems());
      },
      ExitedWithCode(0), "");
}

TEST_F(CopyBatchDeathTest, APasteGoesByWhatTheLastCopyChose) {
  EXPECT_EXIT(
      {
        copy();
        host.run("orvPaste g /group");
        const bool own = nodes("/group") == hosttest::Texts{"a"};
        Clipboard::setLocal(false);
        const bool systems = host.status("orvPaste g /group") == StatusFailure;
        answer(10 * own + systems);
      },
      ExitedWithCode(11), "");
}

TEST_F(CopyBatchDeathTest, ASystemsClipboardThatRefusesFailsTheCopyWithoutAMessage) {
  EXPECT_EXIT(
      {
        AskedAbout::answer = 0;
        system.refuses = true;
        const KStatusCode status = host.status("orvCopy g \"/\" -src a");
        answer(status == StatusFailure && host.takeMessages().empty());
      },
      ExitedWithCode(1), "");
}

// The host's own answer.

class CopyOwnAbout : public ClipboardTest {
 protected:
  CopyOwnAbout() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  /// Copies in a host with these options; gives whether it went to the system's clipboard.
  static bool copiesToTheSystems(bool batch) {
    vesk::SessionOptions options;
    options.batch = batch;
    hosttest::GraphHost other(options);
    registerMessages();
    other.session().registry().add(
        {"orvCompound", orvCompoundCmd::creator, orvCompoundCmd::createSyntax(), nullptr, {}});
    other.session().registry().add(
        {"orvCopy", orvCopyCmd::creator, orvCopyCmd::createSyntax(), nullptr, {}});
    other.graph("batched");
    other.run("orvCompound batched \"/\" -addNode core::math::add");
    TrialClipboard system;
    Clipboard::install(&system);
    Clipboard::setLocal(!batch);
    other.run("orvCopy batched \"/\" -src add");
    return system.held != "untouched";
  }

  [[noreturn]] static void answer(bool yes) {
    std::fflush(nullptr);
    std::_Exit(yes ? 1 : 0);
  }
};

using CopyOwnAboutDeathTest = CopyOwnAbout;

TEST_F(CopyOwnAboutDeathTest, OfAHostInBatchLeavesTheSystemsAlone) {
  EXPECT_EXIT(answer(copiesToTheSystems(true) || HasFailure()), ExitedWithCode(0), "");
}

TEST_F(CopyOwnAboutDeathTest, OfAHostThatSomebodySitsInFrontOfTakesTheSystems) {
  EXPECT_EXIT(answer(copiesToTheSystems(false) && !HasFailure()), ExitedWithCode(1), "");
}

}  // namespace
