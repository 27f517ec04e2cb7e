#include "tests/support/ProbeCommand.h"

#include <map>

#include "standalone/host/engine/HostAccess.h"

namespace hosttest {
namespace {

std::map<std::string, ProbeBody> bodies;
Texts diary;
int alive = 0;

class ProbeCommand : public KPxCommand {
 public:
  ProbeCommand() { ++alive; }
  ~ProbeCommand() override {
    --alive;
    write("delete");
  }

  KStatus doIt(const KArgList& arguments) override {
    for (unsigned i = 0; i < arguments.length(); ++i) {
      arguments_ += std::string(" ") + arguments.asString(i).asUTF8();
    }
    write("doIt");
    return body().doIt ? body().doIt(*this, arguments) : StatusSuccess;
  }
  KStatus undoIt() override { return carry("undoIt", body().undoIt); }
  KStatus redoIt() override { return carry("redoIt", body().redoIt); }
  bool isUndoable() const override {
    write("isUndoable");
    return body().undoable;
  }

 private:
  std::string name() const {
    const vesk::CommandEntry* entry = HostAccess::entryOf(*this);
    return entry ? entry->name : std::string();
  }
  const ProbeBody& body() const { return bodies.at(name()); }
  void write(const std::string& what) const { diary.push_back(what + " " + name() + arguments_); }
  KStatus carry(const std::string& what, const std::function<KStatus()>& work) const {
    write(what);
    return work ? work() : StatusSuccess;
  }

  std::string arguments_;
};

}  // namespace

void addProbe(Host& host, const std::string& name, ProbeBody body, const KSyntax& syntax) {
  bodies[name] = std::move(body);
  const auto create = [] { return static_cast<KPxCommand*>(new ProbeCommand); };
  ASSERT_EQ(host.session().registry().add({name, create, syntax, nullptr, {}}),
            vesk::CommandRegistry::Outcome::Registered);
}

void addEdit(Host& host) { addProbe(host, "edit", {.undoable = true}); }

Texts takeDiary() { return std::exchange(diary, {}); }

int aliveProbes() { return alive; }

ProbeHost::ProbeHost() {
  diary.clear();
  addEdit(*this);
}

ProbeHost::~ProbeHost() {
  end();
  EXPECT_EQ(alive, 0) << "commands that were not deleted";
  bodies.clear();
}

}  // namespace hosttest
