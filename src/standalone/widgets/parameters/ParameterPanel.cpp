#include "standalone/widgets/parameters/ParameterPanel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "standalone/graph/model/Changes.h"
#include "standalone/widgets/look/Signs.h"
#include "standalone/widgets/parameters/Notes.h"
#include "standalone/widgets/parameters/ParameterRow.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/ReadOnlyNote.h"
#include "standalone/widgets/parameters/RowStyle.h"
#include "standalone/widgets/parameters/RowView.h"

namespace orvuilib {

using orvlib::NodeRef;

namespace {

/// What can make, remove or rename a row, or turn it into one of another kind.
constexpr unsigned char kRowChanges = orvlib::kPortChange | orvlib::kWireChange |
                                      orvlib::kMetadataChange | orvlib::kIdentityChange |
                                      orvlib::kContentChange;

}  // namespace

ParameterPanel::ParameterPanel(QWidget* parent)
    : QWidget(parent),
      search_(new QLineEdit(this)),
      blank_(makeNote("Nothing is selected", this)),
      readOnly_(new ReadOnlyNote(this)),
      rows_(new RowView(this)) {
  const int gap = style::gap(*this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, gap, 0, 0);
  layout->setSpacing(gap);
  auto* top = new QHBoxLayout;
  top->setContentsMargins(gap, 0, gap, 0);
  top->addWidget(search_);
  layout->addLayout(top);
  layout->addWidget(blank_, 1);
  layout->addWidget(rows_, 1);
  layout->addWidget(readOnly_);
  search_->setPlaceholderText("Search");
  search_->setToolTip("Name, value or type; name:, type: and value: narrow the search");
  search_->setTextMargins(gap, 0, gap, 0);
  search_->setObjectName("search");
  addClearAction(*search_);
  search_->installEventFilter(this);
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    rows_->setFilter(text.trimmed());
    showNotes();
  });
  rows_->edited = [this] {
    if (edited) edited();
  };
  rows_->refused = [this](const QString& reason) {
    if (refused) refused(reason);
  };
  showNotes();
}

void ParameterPanel::showNodes(const std::vector<NodeRef>& nodes) {
  nodes_ = nodes;
  makeRowsAnew();
}

void ParameterPanel::follow(unsigned char bits) {
  // Hiding a port counts as a change of its value.
  if ((bits & kRowChanges) != 0 || rowFingerprint(nodes_) != fingerprint_) {
    makeRowsAnew();
  } else {
    rows_->refresh();
    showNotes();
  }
}

void ParameterPanel::makeRowsAnew() {
  rows_->setGroups(makeRows(nodes_));
  fingerprint_ = rowFingerprint(nodes_);
  showNotes();
}

void ParameterPanel::showNotes() {
  const bool isSearching = !search_->text().trimmed().isEmpty();
  blank_->setText(nodes_.empty() ? "Nothing is selected"
                  : isSearching  ? "No such parameter"
                                 : "No parameters");
  blank_->setVisible(rows_->isEmpty());
  rows_->setVisible(!rows_->isEmpty());
  search_->setVisible(!nodes_.empty());
  readOnly_->tell(readOnlyText());
}

QString ParameterPanel::readOnlyText() const {
  QString first;
  bool all = true;
  for (const NodeRef& node : nodes_) {
    const QString reason = readOnlyReason(*node);
    all = all && !reason.isEmpty();
    if (first.isEmpty()) first = reason;
  }
  return all || first.isEmpty() ? first : "In part " + first.toLower().left(1) + first.mid(1);
}

/// Escape empties the field first, before it means anything else.
bool ParameterPanel::eventFilter(QObject* object, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress;
  if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
      !search_->text().isEmpty()) {
    search_->clear();
    return true;
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace orvuilib
