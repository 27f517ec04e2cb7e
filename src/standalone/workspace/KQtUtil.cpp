#include "platform/OpenVeskUI/KQtUtil.h"

#include <QLayout>
#include <QVBoxLayout>
#include <QWidget>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/workspace/Workspace.h"

VESK_API_OPEN

namespace {

QLayout* layoutOf(QWidget& parent) {
  if (!parent.layout()) {
    auto* layout = new QVBoxLayout(&parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
  }
  return parent.layout();
}

}  // namespace

QWidget* KQtUtil::getCurrentParent() {
  const vesk::Workspace* workspace = vesk::Workspace::current();
  return workspace ? workspace->currentParent() : nullptr;
}

KString KQtUtil::addWidgetToVeskLayout(QWidget* child, QWidget* parent, const KString& name) {
  if (child && !parent && !child->parent()) child->deleteLater();
  if (!child || !parent) return {};
  if (name.length() > 0) child->setObjectName(QString::fromUtf8(name.asUTF8()));
  layoutOf(*parent)->addWidget(child);
  return HostAccess::string(child->objectName().toStdString());
}

int KQtUtil::dpiScale(int size) {
  const auto scaled = static_cast<long long>(size) * vesk::interfaceScale();
  return static_cast<int>((scaled + (scaled < 0 ? -50 : 50)) / 100);
}

VESK_API_CLOSE
