#include "standalone/workspace/Panel.h"

#include <QCloseEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "standalone/workspace/Theme.h"

namespace vesk {
namespace {

/// The content area, which wants the size that the panel was made with.
class ContentArea final : public QWidget {
 public:
  explicit ContentArea(const Panel& panel) : panel_(panel) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
  }

  QSize sizeHint() const override {
    const PanelSettings& settings = panel_.settings();
    return {theme::scaled(settings.initialWidth), theme::scaled(settings.initialHeight)};
  }

 private:
  const Panel& panel_;
};

constexpr const char* kNoteName = "panelNote";

}  // namespace

Panel::Panel(PanelSettings settings, QWidget* parent)
    : QDockWidget(parent), settings_(std::move(settings)) {
  setKnown(true);
  setWindowTitle(QString::fromStdString(settings_.label));
  setWidget(new ContentArea(*this));
}

void Panel::setLabel(std::string label) {
  settings_.label = std::move(label);
  setWindowTitle(QString::fromStdString(settings_.label));
}

/// The window tells panels apart by their object names.
void Panel::setKnown(bool known) {
  setObjectName(known ? QString::fromStdString("panel " + settings_.name) : QString());
}

bool Panel::isEmpty() const {
  return content()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty();
}

void Panel::showNote(const QString& text) {
  clearNote();
  auto* note = new QLabel(text);
  note->setObjectName(kNoteName);
  note->setWordWrap(true);
  note->setAlignment(Qt::AlignCenter);
  note->setMargin(theme::scaled(16));
  note->setTextFormat(Qt::PlainText);
  note->setTextInteractionFlags(Qt::TextSelectableByMouse);
  content()->layout()->addWidget(note);
}

void Panel::clearNote() {
  delete content()->findChild<QLabel*>(kNoteName, Qt::FindDirectChildrenOnly);
}

void Panel::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (closeAsked) closeAsked();
}

}  // namespace vesk
