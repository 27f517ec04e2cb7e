#include "standalone/vesk/recovery/RecoveryOffer.h"

#include <QMessageBox>
#include <QPushButton>

#include "standalone/host/engine/HostSession.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/ProgramOptions.h"
#include "standalone/vesk/recovery/AbandonedJournal.h"
#include "standalone/vesk/recovery/KeptJournal.h"
#include "standalone/vesk/recovery/Recovery.h"

namespace vesk {
namespace {

using Journals = std::vector<AbandonedJournal>;

std::string countOf(std::size_t count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string describe(const AbandonedJournal& journal) {
  return "the session of " + journal.began() + " ended abruptly, after " +
         countOf(journal.lines().size(), "line");
}

void runAgain(AbandonedJournal& journal, HostSession& session, KeptJournal& kept) {
  const Recovered recovered = recover(journal, session, kept);
  std::string text = countOf(recovered.lines, "line") + " of it ran again";
  if (recovered.failed > 0) text += ", " + std::to_string(recovered.failed) + " of them failed";
  session.messages().print(text);
  if (!recovered.isSafe) {
    session.messages().warning("the journal of now cannot be written whole; the old one stays");
  }
}

void recoverNewest(Journals& journals, HostSession& session, KeptJournal* kept) {
  if (journals.empty()) return session.messages().warning("there is nothing to recover");
  if (!kept) return session.messages().error("without a journal nothing can be recovered");
  session.messages().print(describe(journals.front()));
  runAgain(journals.front(), session, *kept);
}

void discard(Journals& journals, HostSession& session) {
  for (AbandonedJournal& journal : journals) journal.remove();
  session.messages().print(countOf(journals.size(), "abandoned session") + " discarded");
}

std::string question(const Journals& journals, HostSession& session) {
  const AbandonedJournal& newest = journals.front();
  std::string text = "It began on " + newest.began() + " and ran " +
                     countOf(newest.lines().size(), "line") +
                     ", which can be run again in a new scene.";
  if (session.scene().isModified()) text += " The scene of now has unsaved changes: they go.";
  if (journals.size() > 1) text += " Older sessions are offered at the next start.";
  return text;
}

/// The journals stay locked until the user has chosen: no other program offers them meanwhile.
void ask(QWidget& window, Journals&& found, HostSession& session, KeptJournal& kept) {
  const auto journals = std::make_shared<Journals>(std::move(found));
  auto* box = new QMessageBox(&window);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setObjectName("recovery");
  box->setIcon(QMessageBox::Question);
  box->setText(QMessageBox::tr("The last session ended abruptly."));
  box->setInformativeText(QString::fromStdString(question(*journals, session)));
  QPushButton* again = box->addButton(QMessageBox::tr("Recover"), QMessageBox::AcceptRole);
  QPushButton* never = box->addButton(QMessageBox::tr("Discard"), QMessageBox::DestructiveRole);
  box->setEscapeButton(box->addButton(QMessageBox::tr("Later"), QMessageBox::RejectRole));
  box->setDefaultButton(again);
  QObject::connect(box, &QMessageBox::buttonClicked, &window,
                   [journals, again, never, &session, &kept](QAbstractButton* button) {
                     if (button == again) runAgain(journals->front(), session, kept);
                     if (button == never) journals->front().remove();
                   });
  box->open();
}

}  // namespace

std::string journalFolder(const HostSession& session) {
  return session.options().preferencesFolder + "/journal";
}

bool keepsJournal(const ProgramOptions& options) {
  if (options.transcript || options.check || !options.journal.empty()) return false;
  return options.recover || options.discard || options.inputs.empty() || !options.batch;
}

std::unique_ptr<KeptJournal> keepJournal(HostSession& session) {
  std::string reason;
  auto kept = KeptJournal::begin(journalFolder(session), session, reason);
  if (!kept) session.messages().warning("no journal can be kept in " + reason);
  return kept;
}

void takeUpJournals(const ProgramOptions& options, HostSession& session, KeptJournal* kept,
                    QWidget* window) {
  Journals journals = AbandonedJournal::listIn(journalFolder(session));
  if (options.recover) return recoverNewest(journals, session, kept);
  if (options.discard) return discard(journals, session);
  if (journals.empty()) return;
  if (window && kept) return ask(*window, std::move(journals), session, *kept);
  session.messages().warning(describe(journals.front()) + "; vesk --recover runs them again, " +
                             "--discard forgets them");
}

}  // namespace vesk
