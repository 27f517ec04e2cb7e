#include "standalone/widgets/compound/parts/GraphSearch.h"

#include <deque>

#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/types/ValueText.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::PortObject;

namespace {

enum What { kName, kType, kValue, kKinds };

struct Request {
  QString text;
  bool wanted[kKinds] = {true, true, true};
};

Request read(const QString& typed) {
  static const QString prefixes[] = {QStringLiteral("name:"), QStringLiteral("type:"),
                                     QStringLiteral("value:")};
  for (int kind = 0; kind < kKinds; ++kind) {
    if (!typed.startsWith(prefixes[kind], Qt::CaseInsensitive)) continue;
    Request request{typed.mid(prefixes[kind].size()).trimmed()};
    for (int other = 0; other < kKinds; ++other) request.wanted[other] = other == kind;
    return request;
  }
  return {typed};
}

bool contains(const std::string& text, const QString& part) {
  return QString::fromStdString(text).contains(part, Qt::CaseInsensitive);
}

/// The first port whose own value has the text, as "a = 0.5".
QString fittingValue(const NodeObject& node, const QString& part) {
  for (const auto* list : {&node.inputList(), &node.outputList()}) {
    for (const PortObject* port : list->items()) {
      const auto value = port->ownValue() ? port->settableValue() : std::nullopt;
      if (!value) continue;
      const std::string text = orvlib::writeList(orvlib::printValue(*value));
      if (!contains(text, part)) continue;
      return QString::fromStdString(port->name() + " = " + text);
    }
  }
  return {};
}

class Search {
 public:
  Search(const Request& request, std::size_t most) : request_(request), most_(most) {}

  void look(NodeObject& node) {
    if (request_.wanted[kName] && contains(node.name(), request_.text)) {
      return add(kName, node, {});
    }
    const std::string type = node.typeName();
    if (request_.wanted[kType] && contains(type, request_.text)) {
      return add(kType, node, QString::fromStdString(type));
    }
    const QString value = request_.wanted[kValue] ? fittingValue(node, request_.text) : QString();
    if (!value.isEmpty()) add(kValue, node, value);
  }

  bool isFull() const { return found_[kName].size() >= most_; }

  std::vector<Found> result() {
    std::vector<Found> all;
    for (auto& list : found_) {
      for (Found& each : list) {
        if (all.size() < most_) all.push_back(std::move(each));
      }
    }
    return all;
  }

 private:
  void add(What kind, NodeObject& node, const QString& reason) {
    if (found_[kind].size() < most_) found_[kind].push_back({orvlib::NodeRef(&node), reason});
  }

  const Request& request_;
  std::size_t most_;
  std::vector<Found> found_[kKinds];
};

}  // namespace

std::vector<Found> findInGraph(orvlib::CompoundObject& level, const QString& typed,
                               std::size_t most) {
  const Request request = read(typed);
  if (request.text.isEmpty()) return {};
  Search search(request, most);
  std::deque<orvlib::CompoundObject*> levels{&level};
  for (; !levels.empty() && !search.isFull(); levels.pop_front()) {
    for (NodeObject* node : levels.front()->nodes().items()) {
      search.look(*node);
      if (node->compound()) levels.push_back(node->compound());
    }
  }
  return search.result();
}

}  // namespace orvuilib
