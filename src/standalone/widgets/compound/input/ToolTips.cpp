#include "platform/ORV_1_0/QtConversions.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/types/ValueText.h"
#include "standalone/widgets/compound/input/Interaction.h"
#include "standalone/widgets/compound/scene/ShownValue.h"
#include "standalone/widgets/look/Feeding.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::PortObject;

namespace {

QString text(const std::string& utf8) { return QString::fromStdString(utf8).toHtmlEscaped(); }

QString bold(const std::string& utf8) { return QStringLiteral("<b>%1</b>").arg(text(utf8)); }

QString valueOf(const PortObject& port) {
  const QString last = lastValueOf(port);
  if (!last.isEmpty()) return QStringLiteral("last value: ") + last.toHtmlEscaped();
  if (isFed(port)) return feedersText(port).toHtmlEscaped();
  const auto value = port.settableValue();
  if (!value) return {};
  const auto texts = orvlib::printValue(*value);
  if (texts.size() > 16) return QStringLiteral("%1 values").arg(texts.size());
  return QStringLiteral("value: ") + text(orvlib::writeList(texts));
}

QString join(QStringList lines) {
  lines.removeAll(QString());
  return QStringLiteral("<qt>%1</qt>").arg(lines.join(QStringLiteral("<br>")));
}

QString portTip(const PortObject& port) {
  const auto* description = port.description();
  return join({bold(port.name()) + QStringLiteral(" : ") + text(port.valueType().name),
               description ? text(description->description) : QString(), valueOf(port)});
}

QString nodeTip(const NodeObject& node) {
  const auto* description = node.description();
  return join({bold(node.name()) + QStringLiteral(" : ") + text(node.typeName()),
               description ? text(description->description) : QString(),
               node.nodeKind() == orvlib::NodeKind::Placeholder
                   ? QStringLiteral("The runtime does not know this type.")
                   : QString()});
}

QString wireTip(const Wire& wire) {
  return join(
      {bold(wire.source->fullPath()) + QStringLiteral(" → ") + bold(wire.target->fullPath()),
       text(wire.source->valueType().name), valueOf(*wire.source)});
}

}  // namespace

QString toolTipFor(const Hit& hit) {
  if (hit.slot) return portTip(*hit.port());
  if (hit.wire) return wireTip(*hit.wire);
  if (hit.part == Hit::Part::AddPort) return QStringLiteral("Add a port to the compound");
  if (hit.box && hit.box->kind == BoxKind::Node) return nodeTip(*hit.box->node);
  return {};
}

}  // namespace orvuilib
