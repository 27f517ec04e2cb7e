#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>
#include <csignal>

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using vesk::testing::addNode;
using vesk::testing::MessageLog;
using vesk::testing::namesIn;
using vesk::testing::noteType;
using vesk::testing::readFile;
using vesk::testing::stateOf;
using vesk::testing::TemporaryFolder;
using vesk::testing::writeFile;

/// While it lives, this process can write no file beyond a size.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

class SceneStorage : public ::testing::Test {
 protected:
  SceneStorage() { scene_.types().add(noteType(&diary_)); }

  /// Nothing of the scene, its file or its state has changed by a refused `open`.
  void expectRefusedUnchanged(const std::string& path, const std::string& reason) {
    const std::string state = stateOf(scene_);
    const std::string file = scene_.path();
    const bool modified = scene_.isModified();
    diary_.clear();
    EXPECT_FALSE(scene_.open(path));
    EXPECT_THAT(log_.take(), ElementsAre(AllOf(HasSubstr(path), HasSubstr(reason))));
    EXPECT_EQ(stateOf(scene_), state);
    EXPECT_EQ(scene_.path(), file);
    EXPECT_EQ(scene_.isModified(), modified);
    EXPECT_THAT(diary_, IsEmpty());
  }

  std::vector<std::string> diary_;
  TemporaryFolder folder_;
  MessageChannel messages_;
  MessageLog log_{messages_};
  SceneEvents events_;
  Scene scene_{messages_, events_};
};

TEST_F(SceneStorage, SaveAndOpenGiveTheSameScene) {
  addNode(scene_, "note", "n", "Größe\n\"木\"\n");
  addNode(scene_, "group", "g");
  const std::string before = stateOf(scene_);
  const std::string path = folder_.path("Größe 木.vesk");
  EXPECT_TRUE(scene_.save(path));
  EXPECT_TRUE(scene_.startNew());
  EXPECT_EQ(scene_.size(), 0u);
  EXPECT_TRUE(scene_.open(path));
  EXPECT_EQ(stateOf(scene_), before);
  EXPECT_EQ(scene_.path(), path);
}

TEST_F(SceneStorage, TheSameSceneWritesTheSameBytes) {
  for (const char* name : {"z", "a", "m"}) addNode(scene_, "note", name, name);
  EXPECT_TRUE(scene_.save(folder_.path("1")));
  EXPECT_TRUE(scene_.save(folder_.path("2")));
  EXPECT_TRUE(scene_.open(folder_.path("1")));
  EXPECT_TRUE(scene_.save(folder_.path("3")));
  EXPECT_EQ(readFile(folder_.path("1")), readFile(folder_.path("2")));
  EXPECT_EQ(readFile(folder_.path("1")), readFile(folder_.path("3")));
}

TEST_F(SceneStorage, TheSelectionIsNotSaved) {
  scene_.selection().add(addNode(scene_, "group", "g"));
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  EXPECT_EQ(scene_.selection().size(), 1u);
  EXPECT_TRUE(scene_.open(folder_.path("s")));
  EXPECT_EQ(scene_.selection().size(), 0u);
}

TEST_F(SceneStorage, NothingIsModifiedAfterSaveOpenAndNew) {
  addNode(scene_, "note", "n");
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  EXPECT_FALSE(scene_.isModified());
  scene_.setModified(true);
  EXPECT_TRUE(scene_.open(folder_.path("s")));
  EXPECT_FALSE(scene_.isModified());
  scene_.setModified(true);
  EXPECT_TRUE(scene_.startNew());
  EXPECT_FALSE(scene_.isModified());
  EXPECT_EQ(scene_.path(), "");
}

TEST_F(SceneStorage, ARelativePathIsKeptAbsolute) {
  const QString working = QDir::currentPath();
  QDir::setCurrent(QString::fromStdString(folder_.path("")));
  EXPECT_TRUE(scene_.save("./s.vesk"));
  QDir::setCurrent(working);
  EXPECT_TRUE(QFileInfo(QString::fromStdString(scene_.path())).isAbsolute());
  EXPECT_THAT(scene_.path(), ::testing::EndsWith("/s.vesk"));
  EXPECT_TRUE(scene_.save(scene_.path()));
}

TEST_F(SceneStorage, OpenReplacesAllNodesAndTellsThem) {
  addNode(scene_, "note", "saved");
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  const SceneNodePtr old = addNode(scene_, "note", "dropped");
  diary_.clear();
  EXPECT_TRUE(scene_.open(folder_.path("s")));
  EXPECT_FALSE(old->isInScene());
  EXPECT_THAT(diary_, ElementsAre("left dropped", "left saved", "entered saved"));
}

TEST_F(SceneStorage, NodesMadeAfterOpenStandBehindThoseOfTheFile) {
  addNode(scene_, "group", "a");
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  EXPECT_TRUE(scene_.open(folder_.path("s")));
  addNode(scene_, "group", "a");
  EXPECT_THAT(namesIn(scene_), ElementsAre("a", "a1"));
}

TEST_F(SceneStorage, ADamagedFileLeavesTheSceneAsItWas) {
  scene_.selection().add(addNode(scene_, "note", "n", "text"));
  EXPECT_TRUE(scene_.save(folder_.path("good")));
  scene_.setModified(true);
  const std::string good = readFile(folder_.path("good"));
  const std::string path = folder_.path("damaged");
  for (std::size_t size = 0; size < good.size(); ++size) {
    writeFile(path, good.substr(0, size));
    expectRefusedUnchanged(path, "line ");
  }
}

TEST_F(SceneStorage, APayloadThatRefusesLeavesTheSceneAsItWas) {
  addNode(scene_, "note", "n", "fine\nbad");
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  expectRefusedUnchanged(folder_.path("s"), "line 4: data of node \"n\": a bad line");
}

TEST_F(SceneStorage, AFileThatCannotBeReadLeavesTheSceneAsItWas) {
  addNode(scene_, "group", "g");
  expectRefusedUnchanged(folder_.path("missing"), "No such file");
  QDir().mkpath(QString::fromStdString(folder_.path("folder")));
  expectRefusedUnchanged(folder_.path("folder"), "cannot open");
}

TEST_F(SceneStorage, AForeignNodeIsWarnedOfAndWrittenBackUnchanged) {
  const std::string text =
      "vesk-scene 1\nnode \"alien\" \"x\" \"" + SceneNode::makeUuid() + "\" 3\n\xFF\n;\nend 1\n";
  writeFile(folder_.path("s"), text);
  EXPECT_TRUE(scene_.open(folder_.path("s")));
  EXPECT_THAT(log_.take(), ElementsAre(AllOf(HasSubstr("? "), HasSubstr("\"alien\""),
                                             HasSubstr("\"x\""), HasSubstr(folder_.path("s")))));
  EXPECT_TRUE(scene_.save(folder_.path("t")));
  EXPECT_EQ(readFile(folder_.path("t")), text);
}

TEST_F(SceneStorage, ASaveThatFailsLeavesTheOldFileAndTheScene) {
  addNode(scene_, "group", "g");
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  addNode(scene_, "group", "h");
  QDir().mkpath(QString::fromStdString(folder_.path("folder")));
  EXPECT_FALSE(scene_.save(folder_.path("folder")));
  EXPECT_FALSE(scene_.save(folder_.path("none/s")));
  EXPECT_THAT(log_.take(),
              ElementsAre(HasSubstr("cannot save"), HasSubstr(folder_.path("none/s"))));
  EXPECT_EQ(scene_.path(), folder_.path("s"));
  EXPECT_TRUE(scene_.isModified());
  EXPECT_TRUE(QFileInfo(QString::fromStdString(folder_.path("folder"))).isDir());
}

TEST_F(SceneStorage, ASaveReplacesNothingButARegularFile) {
  addNode(scene_, "group", "g");
  const std::string pipe = folder_.path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(scene_.save(pipe));
  EXPECT_THAT(log_.take(), ElementsAre(HasSubstr("it is no regular file")));
  struct stat now {};
  ASSERT_EQ(stat(pipe.c_str(), &now), 0);
  EXPECT_TRUE(S_ISFIFO(now.st_mode));
}

TEST_F(SceneStorage, ASaveThatRunsOutOfRoomLeavesTheOldFile) {
  addNode(scene_, "note", "n", "short");
  const std::string path = folder_.path("s");
  EXPECT_TRUE(scene_.save(path));
  const std::string old = readFile(path);
  addNode(scene_, "note", "m", std::string(100'000, 'x'));
  {
    const FileSizeLimit limit(4096);
    EXPECT_FALSE(scene_.save(path));
  }
  EXPECT_THAT(log_.take(), ElementsAre(HasSubstr("cannot save")));
  EXPECT_EQ(readFile(path), old);
  EXPECT_TRUE(scene_.isModified());
  const QDir folder(QString::fromStdString(folder_.path("")));
  EXPECT_EQ(folder.entryList(QDir::Files | QDir::Hidden), QStringList{"s"});
}

TEST_F(SceneStorage, ASaveLeavesNoOtherFileBehind) {
  addNode(scene_, "group", "g");
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  const QDir folder(QString::fromStdString(folder_.path("")));
  EXPECT_EQ(folder.entryList(QDir::Files | QDir::Hidden), QStringList{"s"});
}

struct EventDiary {
  Scene* scene;
  std::vector<std::string> lines;
};
EventDiary* eventDiary = nullptr;

template <int event>
void noteEvent(void*) {
  eventDiary->lines.push_back(std::to_string(event) + ": " +
                              std::to_string(eventDiary->scene->size()) + " nodes");
}

class SceneStorageEvents : public SceneStorage {
 protected:
  SceneStorageEvents() {
    eventDiary = &events;
    listen<1>(), listen<2>(), listen<3>(), listen<4>(), listen<5>(), listen<6>();
    addNode(scene_, "group", "g");
  }
  ~SceneStorageEvents() override { eventDiary = nullptr; }

  template <int event>
  void listen() {
    events_.add(static_cast<SceneEvent>(event), noteEvent<event>, nullptr);
  }

  EventDiary events{&scene_, {}};
};

TEST_F(SceneStorageEvents, StandAroundTheWork) {
  EXPECT_TRUE(scene_.save(folder_.path("s")));
  EXPECT_TRUE(scene_.startNew());
  EXPECT_TRUE(scene_.open(folder_.path("s")));
  EXPECT_THAT(events.lines, ElementsAre("5: 1 nodes", "6: 1 nodes", "1: 1 nodes", "2: 0 nodes",
                                        "3: 0 nodes", "4: 1 nodes"));
}

TEST_F(SceneStorageEvents, DoNotComeForAnOpenThatIsRefused) {
  EXPECT_FALSE(scene_.open(folder_.path("missing")));
  log_.take();
  EXPECT_THAT(events.lines, IsEmpty());
}

TEST_F(SceneStorageEvents, DoNotTellOfASaveThatFailed) {
  EXPECT_FALSE(scene_.save(folder_.path("none/s")));
  log_.take();
  EXPECT_THAT(events.lines, ElementsAre("5: 1 nodes"));
}

TEST_F(SceneStorageEvents, AListenerCannotReplaceTheSceneMeanwhile) {
  events_.add(
      SceneEvent::BeforeNew,
      [](void* scene) { EXPECT_FALSE(static_cast<Scene*>(scene)->open("any")); }, &scene_);
  EXPECT_TRUE(scene_.startNew());
  EXPECT_THAT(log_.take(), ElementsAre("! the scene is just being replaced or saved"));
}

}  // namespace
}  // namespace vesk
