#include "standalone/widgets/compound/parts/Overlays.h"

namespace orvuilib {

Overlays::Overlays(const Theme& theme, QWidget* canvas)
    : canvas_(canvas),
      nodeMenu_(new NodeMenu(theme, canvas)),
      typeList_(new TypeList(theme, canvas)),
      findList_(new FindList(theme, canvas)),
      inlineEditor_(new InlineEditor(theme, canvas)),
      help_(new HelpOverlay(theme, canvas)) {
  for (SearchList* list : {static_cast<SearchList*>(nodeMenu_), static_cast<SearchList*>(typeList_),
                           static_cast<SearchList*>(findList_)}) {
    QObject::connect(list, &SearchList::dismissed, canvas, [canvas] { canvas->setFocus(); });
  }
}

QWidget* Overlays::keyTarget() {
  if (help_->isVisible()) return help_;
  if (inlineEditor_->isVisible()) return inlineEditor_;
  for (SearchList* list : {static_cast<SearchList*>(findList_), static_cast<SearchList*>(typeList_),
                           static_cast<SearchList*>(nodeMenu_)}) {
    if (list->isVisible()) return &list->field();
  }
  return nullptr;
}

void Overlays::open(QWidget* popup, std::function<bool()> isFor) {
  if (popup_) popup_->close();
  popup_ = popup;
  isPopupFor_ = std::move(isFor);
}

void Overlays::follow() {
  nodeMenu_->follow();
  typeList_->follow();
  findList_->follow();
  inlineEditor_->follow();
  if (help_->isVisible()) help_->setGeometry(canvas_->rect());
  if (popup_ && !isPopupFor_()) popup_->close();
}

void Overlays::leaveLevel() {
  inlineEditor_->cancel();
  nodeMenu_->dismiss();
  typeList_->dismiss();
  if (popup_) popup_->close();
}

}  // namespace orvuilib
