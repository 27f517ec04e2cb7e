#include "standalone/widgets/parameters/Notice.h"

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {
namespace {

/// In milliseconds.
constexpr int kShownFor = 6000;

}  // namespace

Notice::Notice(QWidget* parent) : QLabel(parent) {
  setObjectName("notice");
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignCenter);
  setWordWrap(true);
  setMargin(style::gap(*this));
  QPalette own = palette();
  own.setColor(QPalette::WindowText, style::mix(style::refusal(), own.color(QPalette::Text), 0.3));
  setPalette(own);
  timer_.setSingleShot(true);
  timer_.setInterval(kShownFor);
  connect(&timer_, &QTimer::timeout, this, &QWidget::hide);
  hide();
}

void Notice::tell(const QString& text) {
  setText(text);
  show();
  timer_.start();
}

}  // namespace orvuilib
