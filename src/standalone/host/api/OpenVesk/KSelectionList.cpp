#include "platform/OpenVesk/KSelectionList.h"

#include <absl/container/inlined_vector.h>

#include "standalone/host/engine/HostAccess.h"

VESK_API_OPEN

/// Most lists hold one object.
struct KSelectionList::Rep {
  absl::InlinedVector<KObject, 1> objects;
};

void HostAccess::append(KSelectionList& list, KObject object) {
  list.rep_->objects.push_back(std::move(object));
}

KSelectionList::KSelectionList() : rep_(new Rep) {}

KSelectionList::~KSelectionList() { delete rep_; }

KStatus KSelectionList::getDependNode(unsigned int index, KObject& object) const {
  if (index >= rep_->objects.size()) return StatusFailure;
  object = rep_->objects[index];
  return StatusSuccess;
}

VESK_API_CLOSE
