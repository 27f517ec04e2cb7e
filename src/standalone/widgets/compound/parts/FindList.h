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
  void openFor(orvlib::NodeObject& level, Place place);

  /// Lets go of the graph and of what was found in it.
  void forget();

  /// The graph is another one now: before a line is chosen it is searched anew.
  void graphChanged() { stale_ = true; }

  /// Whether anything is looked for.
  bool isSearching() const { return level_ && !field().text().isEmpty(); }

  /// Goes on from what was found last, wherever that stands now.
  void chooseNext() override;

 signals:
  void found(orvlib::NodeObject* node);

 protected:
  std::vector<SearchLine> search(const QString& typed) override;
  void chosen(int index) override;
  bool staysOpen() const override { return true; }

 private:
  void searchAnew();
  int lineOf(const orvlib::NodeObject* node) const;

  const Theme& theme_;
  orvlib::NodeRef level_;
  std::vector<Found> found_;
  bool stale_ = false;
};

}  // namespace orvuilib
