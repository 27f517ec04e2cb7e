#include "standalone/widgets/compound/parts/Breadcrumb.h"

namespace orvuilib {
namespace {

/// Deeper paths show their end.
constexpr std::size_t kMostLevels = 12;

}  // namespace

Breadcrumb::Breadcrumb(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setPalette(theme.widgetPalette());
  setAutoFillBackground(true);
  setFixedHeight(theme.pixels(30));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(theme.pixels(4), 0, theme.pixels(4), 0);
  layout->setSpacing(theme.pixels(2));
  back_ = makeButton(QString(QChar(0x2039)));
  forward_ = makeButton(QString(QChar(0x203a)));
  back_->setToolTip(QStringLiteral("Back (Alt+Left)"));
  forward_->setToolTip(QStringLiteral("Forward (Alt+Right)"));
  back_->setEnabled(false);
  forward_->setEnabled(false);
  layout->addWidget(back_);
  layout->addWidget(forward_);
  layout->addSpacing(theme.pixels(6));
  levels_ = new QHBoxLayout;
  levels_->setSpacing(0);
  layout->addLayout(levels_);
  layout->addStretch();
  connect(back_, &QToolButton::clicked, this, &Breadcrumb::back);
  connect(forward_, &QToolButton::clicked, this, &Breadcrumb::forward);
}

QToolButton* Breadcrumb::makeButton(const QString& text) {
  auto* button = new QToolButton(this);
  button->setText(text);
  button->setAutoRaise(true);
  button->setFont(theme_.widgetFont());
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

void Breadcrumb::display(const Navigator& navigator, const QString& graph) {
  back_->setEnabled(navigator.canGoBack());
  forward_->setEnabled(navigator.canGoForward());
  while (QLayoutItem* item = levels_->takeAt(0)) {
    // One of them may have been clicked just now.
    item->widget()->hide();
    item->widget()->deleteLater();
    delete item;
  }
  const auto path = navigator.path();
  const std::size_t first = path.size() > kMostLevels ? path.size() - kMostLevels : 0;
  for (std::size_t i = first; i < path.size(); ++i) {
    const QString name = i == 0 ? graph : QString::fromStdString(path[i]->name());
    QToolButton* button = makeButton(i == 0 ? name : QStringLiteral("/ ") + name);
    const orvlib::NodeRef level(path[i]);
    connect(button, &QToolButton::clicked, this, [this, level] { emit levelChosen(level.get()); });
    levels_->addWidget(button);
  }
}

QStringList Breadcrumb::texts() const {
  QStringList texts;
  for (int i = 0; i < levels_->count(); ++i) {
    texts.append(static_cast<QToolButton*>(levels_->itemAt(i)->widget())->text());
  }
  return texts;
}

}  // namespace orvuilib
