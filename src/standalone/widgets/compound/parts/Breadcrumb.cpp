#include "standalone/widgets/compound/parts/Breadcrumb.h"

#include <algorithm>

namespace orvuilib {
namespace {

/// Deeper paths show their end.
constexpr std::size_t kMostLevels = 12;

int widthOf(const QToolButton& button) { return button.sizeHint().width(); }

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
  more_ = makeButton(QString(QChar(0x2026)));
  more_->setObjectName(QStringLiteral("moreLevels"));
  more_->setToolTip(QStringLiteral("The levels above"));
  more_->setPopupMode(QToolButton::InstantPopup);
  menu_ = new QMenu(more_);
  menu_->setFont(theme.widgetFont());
  more_->setMenu(menu_);
  more_->hide();
  layout->addWidget(more_);
  buttons_ = new QHBoxLayout;
  buttons_->setSpacing(0);
  layout->addLayout(buttons_);
  layout->addStretch();
  connect(back_, &QToolButton::clicked, this, &Breadcrumb::back);
  connect(forward_, &QToolButton::clicked, this, &Breadcrumb::forward);
  connect(menu_, &QMenu::aboutToShow, this, &Breadcrumb::fillMenu);
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
  clear();
  const auto path = navigator.path();
  for (std::size_t i = 0; i < path.size(); ++i) {
    const QString name = QString::fromStdString(path[i]->name());
    levels_.push_back({orvlib::NodeRef(path[i]), i == 0 ? graph : QStringLiteral("/ ") + name});
    if (i + kMostLevels >= path.size()) addButton(levels_.back());
  }
  fit();
}

void Breadcrumb::clear() {
  levels_.clear();
  while (QLayoutItem* item = buttons_->takeAt(0)) {
    // One of them may have been clicked just now.
    item->widget()->hide();
    item->widget()->deleteLater();
    delete item;
  }
}

void Breadcrumb::addButton(Level& level) {
  level.button = makeButton(level.text);
  connect(level.button, &QToolButton::clicked, this,
          [this, node = level.node] { emit levelChosen(node.get()); });
  buttons_->addWidget(level.button);
}

/// What does not fit goes into the menu, the top first; the last one stays, as far as there is
/// room.
void Breadcrumb::fit() {
  if (levels_.empty()) return more_->hide();
  levels_.back().button->setText(levels_.back().text);
  const int whole = roomForLevels();
  const int beside = whole - widthOf(*more_) - theme_.pixels(2);
  int used = 0;
  std::size_t first = levels_.size();
  while (first > 0 && levels_[first - 1].button) {
    used += widthOf(*levels_[first - 1].button);
    const bool fits = used <= (first == 1 ? whole : beside);
    if (!fits && first < levels_.size()) break;
    --first;
  }
  for (std::size_t i = 0; i < levels_.size(); ++i) {
    if (levels_[i].button) levels_[i].button->setVisible(i >= first);
  }
  more_->setVisible(first > 0);
  elideLast(first > 0 ? beside : whole);
}

/// Only when it is the only one.
void Breadcrumb::elideLast(int room) {
  const Level& last = levels_.back();
  const QFontMetrics metrics(last.button->font());
  const int whole = widthOf(*last.button);
  const bool cut = whole > room;
  last.button->setToolTip(cut ? last.text : QString());
  if (!cut) return;
  const int frame = whole - metrics.horizontalAdvance(last.text);
  last.button->setText(metrics.elidedText(last.text, Qt::ElideRight, std::max(0, room - frame)));
}

void Breadcrumb::fillMenu() {
  menu_->clear();
  for (const Level& level : levels_) {
    if (level.button && !level.button->isHidden()) return;
    menu_->addAction(level.text, this, [this, node = level.node] { emit levelChosen(node.get()); });
  }
}

/// Right of the two arrows, as the layout has it.
int Breadcrumb::roomForLevels() const {
  const int gaps = theme_.pixels(4) * 2 + theme_.pixels(2) * 4 + theme_.pixels(6);
  return width() - gaps - widthOf(*back_) - widthOf(*forward_);
}

QSize Breadcrumb::minimumSizeHint() const { return {theme_.pixels(120), height()}; }

void Breadcrumb::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fit();
}

QStringList Breadcrumb::texts() const {
  QStringList texts;
  for (const Level& level : levels_) {
    if (level.button && !level.button->isHidden()) texts.append(level.button->text());
  }
  return texts;
}

}  // namespace orvuilib
