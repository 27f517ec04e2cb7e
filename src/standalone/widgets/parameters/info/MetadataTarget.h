#pragma once

#include <QString>

#include "platform/orvUI_1_0/CommandHook.h"
#include "standalone/graph/model/NodeObject.h"
#include "standalone/graph/texts/Properties.h"

namespace orvuilib {

/// Something with metadata, and the edits that can be made of it. Edits do nothing when there is no
/// hook or the object is in no graph.
class ORVUI_EXPORT MetadataTarget {
 public:
  MetadataTarget() = default;
  MetadataTarget(const MetadataTarget&) = delete;
  MetadataTarget& operator=(const MetadataTarget&) = delete;
  virtual ~MetadataTarget() = default;

  virtual const orvlib::Properties& metadata() const = 0;
  virtual bool isEditable() const = 0;

  /// Whether there is more than to set single values.
  virtual bool isOpen() const { return true; }

  /// Whether keys can be removed.
  virtual bool canClear() const { return isOpen(); }

  /// Whether a key can have an empty value.
  virtual bool takesEmpty() const { return true; }

  /// What a user may want to know of the keys; empty for nothing.
  virtual QString hint() const { return {}; }

  virtual void set(const QString& key, const QString& value) = 0;
  virtual void add(const QString&, const QString&) {}
  virtual void remove(const QString&, const QString&) {}
  virtual void clear(const QString&) {}
  virtual void replace(const orvlib::Properties&) {}
};

/// The metadata of a node, or of the compound that it is.
class ORVUI_EXPORT NodeMetadata final : public MetadataTarget {
 public:
  using Kind = orvUI_v1::CommandHook::TargetKind;

  /// For `kTargetCompound` the node is a compound's.
  NodeMetadata(orvlib::NodeRef node, Kind kind) : node_(std::move(node)), kind_(kind) {}

  const orvlib::Properties& metadata() const override;
  bool isEditable() const override;
  void set(const QString& key, const QString& value) override;
  void add(const QString& key, const QString& value) override;
  void remove(const QString& key, const QString& value) override;
  void clear(const QString& key) override;
  void replace(const orvlib::Properties& metadata) override;

 private:
  orvUI_v1::CommandHook* hook() const;
  orvUI_v1::CommandHook::NodeHandle handle() const;

  orvlib::NodeRef node_;
  Kind kind_;
};

/// The metadata of a port: one value for a key.
class ORVUI_EXPORT PortMetadata final : public MetadataTarget {
 public:
  explicit PortMetadata(orvlib::PortRef port) : port_(std::move(port)) {}

  const orvlib::Properties& metadata() const override { return port_->metadata(); }
  bool isEditable() const override;
  bool isOpen() const override { return false; }
  bool canClear() const override { return true; }
  bool takesEmpty() const override { return false; }
  QString hint() const override;
  void set(const QString& key, const QString& value) override;
  void clear(const QString& key) override { set(key, QString()); }

 private:
  orvlib::PortRef port_;
};

/// The metadata of the watch point of a port, which values can be set of.
class ORVUI_EXPORT WatchMetadata final : public MetadataTarget {
 public:
  explicit WatchMetadata(orvlib::PortRef port) : port_(std::move(port)) {}

  const orvlib::Properties& metadata() const override;
  bool isEditable() const override;
  bool isOpen() const override { return false; }
  void set(const QString& key, const QString& value) override;

 private:
  orvlib::PortRef port_;
};

}  // namespace orvuilib
