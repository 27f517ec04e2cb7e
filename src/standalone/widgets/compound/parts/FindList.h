#pragma once

#include "standalone/widgets/compound/parts/GraphSearch.h"
#include "standalone/widgets/compound/parts/SearchList.h"

namespace orvuilib {

/// Finds nodes of a graph by name, type and value; stays open to go from one to the next.
class FindList final : public SearchList {
  Q_OBJECT

 public:
  FindList(const Theme& theme, QWidget* parent);

  /// Looks at and below the level, which the list keeps until it is opened again.
  void openFor(orvlib::NodeObject& level, const QPoint& point);

  /// Lets go of the graph.
  void forget();

 signals:
  void found(orvlib::NodeObject* node);

 protected:
  std::vector<SearchLine> search(const QString& typed) override;
  void chosen(int index) override;
  bool staysOpen() const override { return true; }

 private:
  orvlib::NodeRef level_;
  std::vector<Found> found_;
};

}  // namespace orvuilib
