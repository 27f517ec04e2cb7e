#include "standalone/workspace/WorkspaceStyle.h"

#include <QApplication>
#include <QDockWidget>
#include <QIconEngine>
#include <QMainWindow>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "standalone/workspace/ScrollBar.h"
#include "standalone/workspace/Theme.h"

namespace vesk {
namespace {

enum class Glyph { Cross, Frame };

/// A drawing of thin lines that is sharp at every size.
class GlyphEngine final : public QIconEngine {
 public:
  explicit GlyphEngine(Glyph glyph) : glyph_(glyph) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const bool lit = mode == QIcon::Active || mode == QIcon::Selected;
    const double width = std::max(1.0, rect.width() / 12.0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(lit ? Qt::white : theme::kDimText, width, Qt::SolidLine, Qt::RoundCap));
    const double margin = rect.width() * 0.27;
    const QRectF area = QRectF(rect).adjusted(margin, margin, -margin, -margin);
    draw(*painter, area);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new GlyphEngine(*this); }

 private:
  void draw(QPainter& painter, const QRectF& area) const {
    if (glyph_ == Glyph::Cross) {
      painter.drawLine(area.topLeft(), area.bottomRight());
      painter.drawLine(area.bottomLeft(), area.topRight());
    } else {
      const double part = area.width() * 0.3;
      painter.drawRect(area.adjusted(0, part, -part, 0));
      painter.drawPolyline(QPolygonF({{area.left() + part, area.top()},
                                      area.topRight(),
                                      {area.right(), area.bottom() - part}}));
    }
  }

  Glyph glyph_;
};

/// Metrics that are no lengths, or that Qt derives from others.
bool isScaled(QStyle::PixelMetric metric) {
  switch (metric) {
    case QStyle::PM_DefaultFrameWidth:
    case QStyle::PM_SpinBoxFrameWidth:
    case QStyle::PM_ComboBoxFrameWidth:
    case QStyle::PM_DockWidgetFrameWidth:
    case QStyle::PM_MenuPanelWidth:
    case QStyle::PM_MenuBarPanelWidth:
    case QStyle::PM_TextCursorWidth:
    case QStyle::PM_ScrollView_ScrollBarOverlap:
      return false;
    default:
      return true;
  }
}

/// The tab of a panel that shares its place says its name already.
bool isNamedByATab(const QWidget* widget) {
  auto* panel = qobject_cast<QDockWidget*>(const_cast<QWidget*>(widget));
  const auto* window = panel ? qobject_cast<const QMainWindow*>(panel->parentWidget()) : nullptr;
  if (!window || panel->isFloating()) return false;
  return std::ranges::any_of(window->tabifiedDockWidgets(panel), [](const QDockWidget* other) {
    return !other->isFloating() && !other->isHidden();
  });
}

void drawPanelTitle(const QStyleOptionDockWidget& option, QPainter& painter, const QRect& text) {
  painter.save();
  painter.fillRect(option.rect, theme::kTitle);
  painter.setPen(theme::kLine);
  painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  painter.setPen(option.palette.color(QPalette::WindowText));
  painter.setFont(theme::textFont());
  const QRect area = text.adjusted(theme::scaled(4), 0, 0, 0);
  painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(option.title, Qt::ElideRight, area.width()));
  painter.restore();
}

void drawHeaderSection(const QStyleOption& option, QPainter& painter) {
  painter.save();
  painter.fillRect(option.rect, option.palette.color(QPalette::Window));
  painter.setPen(theme::kLine);
  painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  painter.restore();
}

/// What is added to a size so that texts do not stand close to each other, at 100 percent.
QSize roomAround(QStyle::ContentsType type) {
  switch (type) {
    case QStyle::CT_ItemViewItem:
      return {0, 7};
    case QStyle::CT_LineEdit:
    case QStyle::CT_MenuItem:
    case QStyle::CT_PushButton:
      return {0, 4};
    case QStyle::CT_MenuBarItem:
      return {6, 6};
    default:
      return {0, 0};
  }
}

}  // namespace

WorkspaceStyle::WorkspaceStyle() : QProxyStyle("Fusion") {}

int WorkspaceStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                const QWidget* widget) const {
  if (metric == PM_DockWidgetTitleMargin) return theme::scaled(4);
  if (metric == PM_DockWidgetSeparatorExtent) return theme::scaled(5);
  if (metric == PM_ScrollBarExtent) return theme::scaled(12);
  if (metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin) return theme::scaled(6);
  const int size = QProxyStyle::pixelMetric(metric, option, widget);
  return size > 0 && isScaled(metric) ? theme::scaled(size) : size;
}

void WorkspaceStyle::drawControl(ControlElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  const auto* title = element == CE_DockWidgetTitle
                          ? qstyleoption_cast<const QStyleOptionDockWidget*>(option)
                          : nullptr;
  if (element == CE_HeaderSection) {
    drawHeaderSection(*option, *painter);
  } else if (title) {
    QStyleOptionDockWidget shown(*title);
    if (isNamedByATab(widget)) shown.title.clear();
    drawPanelTitle(shown, *painter, subElementRect(SE_DockWidgetTitleBarText, option, widget));
  } else {
    QProxyStyle::drawControl(element, option, painter, widget);
  }
}

void WorkspaceStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (element == PE_IndicatorDockWidgetResizeHandle) return;  // the gap between panels says enough
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void WorkspaceStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const {
  const auto* bar =
      control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option) : nullptr;
  if (bar) {
    drawScrollBar(*bar, *painter);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

QRect WorkspaceStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                     SubControl part, const QWidget* widget) const {
  const auto* bar =
      control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option) : nullptr;
  return bar ? scrollBarPart(*bar, part)
             : QProxyStyle::subControlRect(control, option, part, widget);
}

QSize WorkspaceStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                       const QSize& content, const QWidget* widget) const {
  const QSize room = roomAround(type);
  return QProxyStyle::sizeFromContents(type, option, content, widget) +
         QSize(theme::scaled(room.width()), theme::scaled(room.height()));
}

QIcon WorkspaceStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const {
  if (icon == SP_TitleBarCloseButton) return QIcon(new GlyphEngine(Glyph::Cross));
  if (icon == SP_TitleBarNormalButton) return QIcon(new GlyphEngine(Glyph::Frame));
  return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace vesk
