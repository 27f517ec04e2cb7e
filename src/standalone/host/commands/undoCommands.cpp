#include "standalone/host/commands/BuiltinCommand.h"

namespace vesk {
namespace {

KStatus outcome(bool worked) { return worked ? StatusSuccess : StatusFailure; }

class UndoCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{"undo", "Undoes the last step of the undo queue."};

 private:
  KStatus run(const KArgDatabase&) override {
    const CommandEngine::ScratchResult scratch(session().engine());
    return outcome(session().undoQueue().undo());
  }
};

class RedoCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{"redo", "Does again what was undone last."};

 private:
  KStatus run(const KArgDatabase&) override {
    const CommandEngine::ScratchResult scratch(session().engine());
    return outcome(session().undoQueue().redo());
  }
};

constexpr FlagRow kUndoInfoFlags[] = {
    {"-st", "-state", {KSyntax::ArgBoolean}},
    {"-swf", "-stateWithoutFlush", {KSyntax::ArgBoolean}},
    {"-ock", "-openChunk"},
    {"-cck", "-closeChunk"},
    {"-cn", "-chunkName", {KSyntax::ArgString}},
    {"-l", "-length", {KSyntax::ArgUnsigned}},
    {"-un", "-undoName"},
    {"-rn", "-redoName"},
    {"-pq", "-printQueue"},
};

class UndoInfoCommand : public BuiltinCommand {
 public:
  static constexpr CommandRecord kRecord{
      "undoInfo",
      "Asks and steers the undo queue: recording, chunks, length.",
      kUndoInfoFlags,
      {},
      true};

 private:
  KStatus run(const KArgDatabase& arguments) override {
    const bool namesChunk = arguments.isFlagSet("-ock") && arguments.isFlagSet("-cn");
    const std::size_t actions = flagsGiven(arguments, kUndoInfoFlags) - (namesChunk ? 1 : 0);
    if (actions > 1) return fail("its flags exclude each other, but for -openChunk and -chunkName");
    return arguments.isQuery() ? query(arguments) : change(arguments);
  }

  static KStatus query(const KArgDatabase& arguments) {
    const UndoQueue& queue = session().undoQueue();
    if (arguments.isFlagSet("-st") || arguments.isFlagSet("-swf")) {
      setValue(queue.isEnabled());
    } else if (arguments.isFlagSet("-l")) {
      setValue(static_cast<unsigned int>(queue.limit()));
    } else if (arguments.isFlagSet("-cn")) {
      setValue(queue.chunkName());
    } else {
      return ask(arguments);
    }
    return StatusSuccess;
  }

  /// What can be asked with and without query mode.
  static KStatus ask(const KArgDatabase& arguments) {
    const UndoQueue& queue = session().undoQueue();
    if (arguments.isFlagSet("-un")) {
      setValue(queue.undoName());
    } else if (arguments.isFlagSet("-rn")) {
      setValue(queue.redoName());
    } else if (arguments.isFlagSet("-pq")) {
      print(queue);
    } else {
      return fail("say what to ask or change, with one of its flags");
    }
    return StatusSuccess;
  }

  static KStatus change(const KArgDatabase& arguments) {
    UndoQueue& queue = session().undoQueue();
    if (arguments.isFlagSet("-cn") && !arguments.isFlagSet("-ock")) {
      return fail("-chunkName goes with -openChunk");
    }
    if (arguments.isFlagSet("-ock")) {
      queue.openChunk(flagText(arguments, "-cn"));
    } else if (arguments.isFlagSet("-cck")) {
      if (!queue.closeChunk()) return fail("no undo chunk is open");
    } else if (arguments.isFlagSet("-swf")) {
      queue.setEnabled(flagBool(arguments, "-swf"));
    } else if (arguments.isFlagSet("-st")) {
      setState(queue, flagBool(arguments, "-st"));
    } else if (arguments.isFlagSet("-l")) {
      return setLength(queue, arguments);
    } else {
      return ask(arguments);
    }
    return StatusSuccess;
  }

  static void setState(UndoQueue& queue, bool enabled) {
    queue.setEnabled(enabled);
    if (!enabled) queue.clear();
  }

  static KStatus setLength(UndoQueue& queue, const KArgDatabase& arguments) {
    unsigned int length = 0;
    const KStatus status = arguments.getFlagArgument("-l", 0, length);
    queue.setLimit(length);
    return status;
  }

  static void print(const UndoQueue& queue) {
    MessageChannel& messages = session().messages();
    std::size_t number = 0;
    for (const std::string& name : queue.doneNames()) {
      messages.print("undo " + std::to_string(++number) + ": " + name);
    }
    for (const std::string& name : queue.undoneNames()) {
      messages.print("redo " + std::to_string(++number) + ": " + name);
    }
  }
};

}  // namespace

void registerUndoCommands(CommandRegistry& registry) {
  registerBuiltin<UndoCommand>(registry);
  registerBuiltin<RedoCommand>(registry);
  registerBuiltin<UndoInfoCommand>(registry);
}

}  // namespace vesk
