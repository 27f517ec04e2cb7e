#pragma once

#include <QWidget>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/NodeObject.h"

class QLabel;
class QToolButton;
class QVBoxLayout;

namespace orvuilib {

/// What a node is: name, type, path, origin, description; and where it stands among several, with
/// two buttons that lead to the others.
class ORVUI_EXPORT InfoHeader final : public QWidget {
 public:
  explicit InfoHeader(QWidget* parent);

  /// The node is number `place` of `count`, from 0.
  void show(const orvlib::NodeObject& node, int place, int count);

  /// The next node is asked for, or the one before.
  std::function<void(int by)> turnAsked;

 private:
  QLabel* makeText(const char* name);
  QToolButton* makeArrow(QChar sign, const char* tip, int by);
  void makeName(QVBoxLayout& layout);
  void showType(const orvlib::NodeObject& node);
  void showOrigin(const orvlib::NodeObject& node);

  QToolButton* previous_;
  QLabel* place_;
  QToolButton* next_;
  QLabel* name_;
  QLabel* type_;
  QLabel* typeName_;
  QLabel* path_;
  QLabel* origin_;
  QLabel* description_;
};

}  // namespace orvuilib
