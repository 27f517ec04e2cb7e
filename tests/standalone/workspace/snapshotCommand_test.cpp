#include <QImage>
#include <QLabel>

#include "platform/OpenVeskUI/KQtUtil.h"
#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

using ::testing::HasSubstr;

class Snapshots : public ::testing::Test {
 protected:
  std::string refusal(const std::string& line) {
    const Texts messages = w_.host().refusal("snapshot " + line);
    return messages.size() == 1 ? messages[0] : std::to_string(messages.size()) + " messages";
  }
  std::string path() const { return files_.path("p \u7a97.png"); }
  QImage take(const std::string& flags) {
    w_.run("snapshot -file \"" + path() + "\" " + flags);
    return QImage(QString::fromStdString(path()), "PNG");
  }

  /// A panel that is of one colour.
  void makePanel(const char* flags, const QColor& colour) {
    w_.run(std::string("workspaceControl ") + flags + " p");
    auto* label = new QLabel;
    label->setAutoFillBackground(true);
    label->setPalette(QPalette(colour));
    KQtUtil::addWidgetToVeskLayout(label, KQtUtil::getCurrentParent(), KString());
    settle();
  }

  hosttest::TemporaryFiles files_;
  Window w_;
};

TEST_F(Snapshots, AreOfTheWholeWindowWhenNoPanelIsNamed) {
  EXPECT_EQ(take("").size(), w_.window().size());
}

TEST_F(Snapshots, AreOfThePanelThatIsNamed) {
  makePanel("-floating on -iw 200 -ih 100", Qt::red);
  const QImage image = take("-panel p");
  EXPECT_EQ(image.size(), QSize(200, 100));
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(199, 99), QColor(Qt::red));
}

TEST_F(Snapshots, HaveTheSizeThatIsAskedForAndThePanelKeepsItsOwn) {
  makePanel("", Qt::blue);
  const QSize before = w_.panels().find("p")->content()->size();
  const QImage image = take("-panel p -width 700 -height 50");
  EXPECT_EQ(image.size(), QSize(700, 50));
  EXPECT_EQ(image.pixelColor(699, 49), QColor(Qt::blue));
  EXPECT_EQ(w_.panels().find("p")->content()->size(), before);
  EXPECT_EQ(take("-panel p -width 10").size(), QSize(10, before.height()));
}

TEST_F(Snapshots, ShowAPanelThatIsHidden) {
  makePanel("-visible off", Qt::green);
  const QImage image = take("-panel p -width 60 -height 40");
  EXPECT_EQ(image.pixelColor(30, 20), QColor(Qt::green));
  EXPECT_EQ(w_.run("workspaceControl -q -visible p"), "false");
}

TEST_F(Snapshots, MakeTheContentThatAPanelStillWaitsFor) {
  w_.run("workspaceControl -loadImmediately off -visible off -uiScript \"createNode group\" p");
  take("-panel p -width 60 -height 40");
  EXPECT_EQ(w_.nodes(), R"(["group"])");
}

TEST_F(Snapshots, ShowWhatTheLinesBeforeThemDid) {
  const QImage empty = take("-panel outliner -width 300 -height 200");
  w_.host().run("createNode group; snapshot -panel outliner -width 300 -height 200 -file \"" +
                path() + "\"");
  EXPECT_NE(QImage(QString::fromStdString(path())), empty);
}

TEST_F(Snapshots, ReplaceAFileAsAWhole) {
  files_.write("p \u7a97.png", "former");
  EXPECT_EQ(refusal("-panel gone -file \"" + path() + "\""),
            "! snapshot: no panel is named \"gone\"");
  EXPECT_EQ(files_.read("p \u7a97.png"), "former");
  EXPECT_FALSE(take("").isNull());
}

TEST_F(Snapshots, ThatCannotBeTakenAreRefused) {
  const std::string sizes = "! snapshot: -width and -height are from 1 to 16384";
  for (const char* size : {"-width 0", "-height -5", "-width 16385"}) {
    EXPECT_EQ(refusal(std::string(size) + " -file x.png"), sizes);
  }
  const std::string path = "! snapshot: the path of the picture is missing; name a -file";
  EXPECT_EQ(refusal(""), path);
  EXPECT_EQ(refusal("-file \"\""), path);
  EXPECT_THAT(refusal("-file /proc/none/p.png"),
              HasSubstr("! snapshot: cannot write \"/proc/none/p.png\": "));
}

TEST_F(Snapshots, NeedAWindow) {
  w_.closeWindow();
  EXPECT_EQ(refusal("-file x.png"), "! snapshot: there is no window; start vesk with --gui");
}

}  // namespace
}  // namespace windowtest
