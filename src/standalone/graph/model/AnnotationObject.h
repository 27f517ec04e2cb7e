#pragma once

#include <string>

#include "platform/ORV_1_0/Annotation.h"
#include "standalone/graph/model/Handles.h"
#include "standalone/graph/model/WithMetadata.h"

namespace orvlib {

enum class AnnotationKind : unsigned char { Backdrop, StickyNote };

/// What the library knows of an annotation.
class ORV_EXPORT AnnotationObject final : public WithMetadata<ORV_v1::Annotation> {
 public:
  AnnotationObject(AnnotationKind kind, std::string name) : name_(std::move(name)), kind_(kind) {}

  AnnotationKind kind() const { return kind_; }
  const std::string& name() const { return name_; }

  /// Null when it is in no level.
  CompoundObject* parent() const { return parent_; }

  const char* getName() const override { return name_.c_str(); }
  void appendNodeName(const char*) override {}
  void appendPortName(const char*) override {}
  void setName(const char* name) override;

 private:
  friend class CompoundObject;
  friend class Mutator;

  CompoundObject* parent_ = nullptr;
  std::string name_;
  AnnotationKind kind_;
};

}  // namespace orvlib
