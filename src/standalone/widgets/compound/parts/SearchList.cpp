#include "standalone/widgets/compound/parts/SearchList.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "standalone/widgets/compound/parts/FocusLoss.h"
#include "standalone/widgets/look/Signs.h"

namespace orvuilib {
namespace {

constexpr int kLine = 22;
constexpr int kMostLines = 18;
constexpr int kWidth = 340;
constexpr int kPlace = Qt::UserRole;
constexpr int kColour = Qt::UserRole + 1;

}  // namespace

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
    if (role == kPlace) return line.place;
    if (role == kColour) return line.colour;
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
  Delegate(const Theme& theme, QObject* parent)
      : QStyledItemDelegate(parent), theme_(theme), metrics_(theme.widgetFont()) {}

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {theme_.pixels(100), theme_.pixels(kLine)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const bool current = option.state & QStyle::State_Selected;
    const QPalette palette = theme_.widgetPalette();
    if (current) painter->fillRect(option.rect, palette.color(QPalette::Highlight));
    const int inset = theme_.pixels(8);
    QRectF area = QRectF(option.rect).adjusted(inset, 0, -inset, 0);
    area.setLeft(paintMark(*painter, area, index.data(kColour).value<QColor>()));
    const QString text = index.data().toString();
    const QString place = index.data(kPlace).toString();
    // The text goes first, but leaves a third to where it is from.
    const qreal room = area.width() - inset;
    const qreal textWidth = std::min(metrics_.horizontalAdvance(text), room * 2 / 3);
    const qreal placeWidth = std::min(metrics_.horizontalAdvance(place), room - textWidth);
    painter->setFont(theme_.widgetFont());
    painter->setPen(theme_.palette().quietText);
    painter->drawText(area, Qt::AlignRight | Qt::AlignVCenter,
                      fitted(place, placeWidth, Qt::ElideLeft));
    painter->setPen(theme_.palette().text);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                      fitted(text, room - placeWidth, Qt::ElideRight));
  }

 private:
  /// Gives where the text begins.
  qreal paintMark(QPainter& painter, const QRectF& area, const QColor& colour) const {
    if (!colour.isValid()) return area.left();
    const qreal side = theme_.pixels(8);
    const QRectF mark(area.left(), area.center().y() - side / 2, side, side);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(mark, side / 4, side / 4);
    painter.restore();
    return mark.right() + side;
  }

  /// What fits exactly is not cut for a rounding.
  QString fitted(const QString& text, qreal width, Qt::TextElideMode mode) const {
    return metrics_.horizontalAdvance(text) <= width + 0.5 ? text
                                                           : metrics_.elidedText(text, mode, width);
  }

  const Theme& theme_;
  QFontMetricsF metrics_;
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
  // What is done to the list is not done to what it lies on.
  setAttribute(Qt::WA_NoMousePropagation);
  setFocusPolicy(Qt::ClickFocus);
  setFocusProxy(field_);
  field_->setFont(theme.widgetFont());
  field_->setTextMargins(theme.pixels(4), theme.pixels(2), theme.pixels(4), theme.pixels(2));
  field_->setPlaceholderText(prompt);
  addClearAction(*field_);
  hint_->setFont(theme.widgetFont());
  hint_->setForegroundRole(QPalette::PlaceholderText);
  hint_->setContentsMargins(theme.pixels(8), 0, theme.pixels(8), 0);
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

void SearchList::openAt(Place place) {
  place_ = std::move(place);
  field_->clear();
  refresh();
  show();
  raise();
  field_->setFocus();
}

void SearchList::follow() {
  if (isHidden()) return;
  const auto corner = place_();
  if (!corner) return dismiss();
  takePlace(*corner);
}

/// Of all but the lines.
int SearchList::chromeHeight() const {
  const QMargins margins = layout()->contentsMargins();
  int height = margins.top() + margins.bottom() + field_->sizeHint().height() + 2 * frameWidth();
  if (!hint_->isHidden()) height += layout()->spacing() + hint_->sizeHint().height();
  return height;
}

/// Whole lines, as many as there are and as the parent has room for.
void SearchList::takePlace(const QPoint& corner) {
  const QRect room = parentWidget()->rect();
  const int line = theme_.pixels(kLine);
  const int chrome = chromeHeight();
  const int gap = layout()->spacing();
  const int fitting = std::max((room.height() - chrome - gap) / line, 0);
  const int lines = std::min({lineCount(), kMostLines, fitting});
  list_->setVisible(lines > 0);
  list_->setFixedHeight(lines * line);
  resize(std::min(theme_.pixels(kWidth), room.width()),
         chrome + (lines > 0 ? gap + lines * line : 0));
  move(std::clamp(corner.x(), 0, std::max(room.width() - width(), 0)),
       std::clamp(corner.y(), 0, std::max(room.height() - height(), 0)));
}

void SearchList::setHint(const QString& text) {
  hint_->setText(text);
  hint_->setVisible(!text.isEmpty());
}

void SearchList::refresh() {
  model_->beginChange();
  lines_ = search(field_->text().trimmed());
  model_->endChange();
  setCurrentLine(0);
  if (const auto corner = place_ ? place_() : std::nullopt) takePlace(*corner);
}

void SearchList::setCurrentLine(int index) {
  if (index >= 0 && index < lineCount()) list_->setCurrentIndex(model_->index(index));
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
  choose((currentLine() + 1) % lineCount());
}

void SearchList::step(int lines) {
  if (lines_.empty()) return;
  setCurrentLine(std::clamp(currentLine() + lines, 0, lineCount() - 1));
}

void SearchList::dismiss() {
  if (isHidden()) return;
  const bool focused = field_->hasFocus();
  hide();
  // Who has taken the focus keeps it.
  if (focused) emit dismissed();
}

bool SearchList::keyPressed(int key) {
  switch (key) {
    case Qt::Key_Escape:
      dismiss();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      choose(currentLine());
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
  switch (event->type()) {
    case QEvent::KeyPress:
      return keyPressed(static_cast<QKeyEvent*>(event)->key());
    case QEvent::ShortcutOverride: {
      // Plain keys of the field are not the window's; of the others it takes those of a text.
      constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
      if (static_cast<QKeyEvent*>(event)->modifiers() & kOthers) break;
      event->accept();
      return true;
    }
    case QEvent::FocusOut:
      if (isVisible() && leaves(*static_cast<QFocusEvent*>(event))) dismiss();
      break;
    default:
      break;
  }
  return QFrame::eventFilter(object, event);
}

}  // namespace orvuilib
