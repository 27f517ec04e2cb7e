#include "standalone/widgets/compound/parts/SearchList.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

namespace orvuilib {

class SearchList::Model final : public QAbstractListModel {
 public:
  Model(const std::vector<SearchLine>& lines, QObject* parent)
      : QAbstractListModel(parent), lines_(lines) {}

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const SearchLine& line = lines_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) return line.text;
    if (role == Qt::UserRole) return line.place;
    if (role == Qt::ToolTipRole) return line.toolTip;
    return {};
  }

  void beginChange() { beginResetModel(); }
  void endChange() { endResetModel(); }

 private:
  const std::vector<SearchLine>& lines_;
};

class SearchList::Delegate final : public QStyledItemDelegate {
 public:
  Delegate(const Theme& theme, QObject* parent) : QStyledItemDelegate(parent), theme_(theme) {}

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {theme_.pixels(100), theme_.pixels(22)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const bool current = option.state & QStyle::State_Selected;
    const QPalette palette = theme_.widgetPalette();
    if (current) painter->fillRect(option.rect, palette.color(QPalette::Highlight));
    painter->setFont(theme_.widgetFont());
    const QFontMetrics metrics(theme_.widgetFont());
    const int inset = theme_.pixels(8);
    const QRect area = option.rect.adjusted(inset, 0, -inset, 0);
    const QString place = index.data(Qt::UserRole).toString();
    const int placeWidth = std::min(metrics.horizontalAdvance(place) + 1, area.width() / 2);
    painter->setPen(theme_.palette().quietText);
    painter->drawText(area, Qt::AlignRight | Qt::AlignVCenter,
                      metrics.elidedText(place, Qt::ElideLeft, placeWidth));
    painter->setPen(theme_.palette().text);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                      metrics.elidedText(index.data().toString(), Qt::ElideRight,
                                         area.width() - placeWidth - inset));
  }

 private:
  const Theme& theme_;
};

SearchList::SearchList(const Theme& theme, const QString& prompt, QWidget* parent)
    : QFrame(parent),
      theme_(theme),
      field_(new QLineEdit(this)),
      list_(new QListView(this)),
      hint_(new QLabel(this)),
      model_(new Model(lines_, this)) {
  setPalette(theme.widgetPalette());
  setAutoFillBackground(true);
  setFrameShape(QFrame::StyledPanel);
  setFont(theme.widgetFont());
  field_->setFont(theme.widgetFont());
  field_->setPlaceholderText(prompt);
  field_->setClearButtonEnabled(true);
  hint_->setFont(theme.widgetFont());
  hint_->setForegroundRole(QPalette::PlaceholderText);
  list_->setModel(model_);
  list_->setItemDelegate(new Delegate(theme, this));
  list_->setFrameShape(QFrame::NoFrame);
  list_->setUniformItemSizes(true);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* layout = new QVBoxLayout(this);
  const int margin = theme.pixels(6);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(theme.pixels(4));
  layout->addWidget(field_);
  layout->addWidget(list_);
  layout->addWidget(hint_);
  field_->installEventFilter(this);
  connect(field_, &QLineEdit::textEdited, this, [this] { refresh(); });
  connect(list_, &QListView::clicked, this, [this](const QModelIndex& at) { choose(at.row()); });
  hide();
}

SearchList::~SearchList() = default;

void SearchList::openAt(const QPoint& point) {
  const QRect room = parentWidget()->rect();
  resize(std::min(theme_.pixels(340), room.width()), std::min(theme_.pixels(320), room.height()));
  move(std::clamp(point.x(), 0, room.width() - width()),
       std::clamp(point.y(), 0, room.height() - height()));
  field_->clear();
  refresh();
  show();
  raise();
  field_->setFocus();
}

void SearchList::setHint(const QString& text) {
  hint_->setText(text);
  hint_->setVisible(!text.isEmpty());
}

void SearchList::refresh() {
  model_->beginChange();
  lines_ = search(field_->text().trimmed());
  model_->endChange();
  if (!lines_.empty()) list_->setCurrentIndex(model_->index(0));
}

void SearchList::choose(int index) {
  if (index < 0 || index >= lineCount()) return;
  list_->setCurrentIndex(model_->index(index));
  // Whoever gets it may open another list.
  if (!staysOpen()) hide();
  chosen(index);
}

void SearchList::chooseNext() {
  if (lines_.empty()) return;
  choose((list_->currentIndex().row() + 1) % lineCount());
}

void SearchList::step(int lines) {
  if (lines_.empty()) return;
  const int row = std::clamp(list_->currentIndex().row() + lines, 0, lineCount() - 1);
  list_->setCurrentIndex(model_->index(row));
}

void SearchList::dismiss() {
  if (!isVisible()) return;
  hide();
  emit dismissed();
}

bool SearchList::keyPressed(int key) {
  switch (key) {
    case Qt::Key_Escape:
      dismiss();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      choose(list_->currentIndex().row());
      return true;
    case Qt::Key_Down:
    case Qt::Key_Tab:
      step(1);
      return true;
    case Qt::Key_Up:
    case Qt::Key_Backtab:
      step(-1);
      return true;
    case Qt::Key_PageDown:
      step(10);
      return true;
    case Qt::Key_PageUp:
      step(-10);
      return true;
    case Qt::Key_F3:
      chooseNext();
      return true;
    default:
      return false;
  }
}

bool SearchList::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    return keyPressed(static_cast<QKeyEvent*>(event)->key());
  }
  // Keys of the field are not the window's.
  if (event->type() == QEvent::ShortcutOverride) event->accept();
  if (event->type() == QEvent::FocusOut && isVisible()) dismiss();
  return QFrame::eventFilter(object, event);
}

}  // namespace orvuilib
