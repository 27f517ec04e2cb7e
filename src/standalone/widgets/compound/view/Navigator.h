#pragma once

#include <QPointF>
#include <unordered_map>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/CompoundObject.h"

namespace orvuilib {

/// Which level of which graph is shown, and which were before.
class ORVUI_EXPORT Navigator {
 public:
  /// Begins anew at the top of a graph; null is nowhere.
  void open(orvlib::NodeObject* top);

  /// The node of the level that is shown; null when none is.
  orvlib::NodeObject* current() const;
  orvlib::NodeObject* top() const { return top_.get(); }

  /// A level of the same graph; what lay ahead in the history is forgotten.
  void go(orvlib::NodeObject& level);
  bool canGoBack() const { return at_ > 0; }
  bool canGoForward() const { return at_ + 1 < history_.size(); }
  void back();
  void forward();

  /// Leaves levels that are gone for what is above them. True when what is shown is another level
  /// then.
  bool leaveWhatIsGone();

  /// The levels from the top to the current one.
  std::vector<orvlib::NodeObject*> path() const;

  /// How a level was looked at last.
  struct View {
    qreal zoom = 0;  ///< 0 when it was not yet
    QPointF centre;
  };
  View& viewOf(const orvlib::NodeObject& level) { return views_[&level]; }

 private:
  bool isThere(const orvlib::NodeObject& level) const;

  orvlib::NodeRef top_;

  /// With the chain of levels above it, since a level that is gone no longer knows them.
  struct Place {
    std::vector<orvlib::NodeRef> chain;
    orvlib::NodeObject* level() const { return chain.back().get(); }
  };
  static Place placeOf(orvlib::NodeObject& level);

  std::vector<Place> history_;
  std::size_t at_ = 0;
  std::unordered_map<const orvlib::NodeObject*, View> views_;
};

}  // namespace orvuilib
