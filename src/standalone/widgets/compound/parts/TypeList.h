#pragma once

#include "standalone/graph/model/GraphCore.h"
#include "standalone/widgets/compound/parts/SearchList.h"

namespace orvuilib {

/// A searching list of the types that a port can have.
class TypeList final : public SearchList {
  Q_OBJECT

 public:
  using Done = std::function<void(const QString& type)>;

  TypeList(const Theme& theme, QWidget* parent);

  /// `done` hears of the type that is chosen. The line of `usual` is the current one.
  void offer(const orvlib::GraphCore& core, const QString& prompt, const QString& usual, Place at,
             Done done);

 protected:
  std::vector<SearchLine> search(const QString& typed) override;
  void chosen(int index) override;

 private:
  struct Type {
    QString name;
    QString title;
  };

  const Theme& theme_;
  std::vector<Type> types_;
  std::vector<QString> shown_;
  Done done_;
};

}  // namespace orvuilib
