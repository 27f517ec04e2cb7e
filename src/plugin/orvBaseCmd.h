#pragma once

#include <QString>
#include <QStringList>

#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/Container.h"
#include "platform/ORV_1_0/StringArray.h"
#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KStringArray.h"
#include "platform/OpenVesk/KSyntax.h"

/// What the commands that work on one container share. A command has it as a base beside
/// `KPxCommand`.
class orvBaseCmd {
 protected:
  orvBaseCmd() = default;
  ~orvBaseCmd() = default;

  /// The container that the command works on. Null, and the user is told, when there is none.
  ORV_v1::Container* requireContainer() const;

  /// The compound of that path in the command's container. Null, and the user is told what is not
  /// there, without a container, a node of that path, or when the node is no compound.
  ORV_v1::AddRefWrapper<ORV_v1::Compound> requireCompound(const KString& path) const;

  /// The same in a container that the caller has.
  static ORV_v1::AddRefWrapper<ORV_v1::Compound> requireCompound(ORV_v1::Container& container,
                                                                 const KString& path);

  /// The start of a parse, with the status of the database: the line must fit the syntax and name a
  /// container. Otherwise the user is told, and the status says so.
  KStatus parseContainer(const KArgDatabase& db, KStatus status);

  /// Reads a positional argument. When there is none the user is told, and the status of the read
  /// is returned.
  static KStatus requireArgument(const KArgDatabase& db, unsigned int index, KString& value);
  static KStatus requireArgument(const KArgDatabase& db, unsigned int index, unsigned int& value);

  /// The first positional argument: the name of a scene node, or a container's identifier.
  KString containerName;
};

/// Declares the next positional argument, a text.
void addStringArgument(KSyntax& syntax);

/// Reads the first positional argument. When there is none the user is told, and the status of the
/// read is returned.
KStatus getContainerArgument(KString& containerName, const KArgDatabase& db);

/// The graph of the scene node of that name, or else the graph that the name identifies. Null, and
/// nothing displayed, when there is no such graph. The library owns it.
ORV_v1::Container* findContainer(const KString& name);

/// Replaces `to` by the texts in the host's narrow form: the one place where a text does not reach
/// the library as UTF-8.
void toStringArray(const KStringArray& from, ORV_v1::StringArray& to);

/// Replaces `to` by the library's texts.
void toKStringArray(const ORV_v1::StringArray& from, KStringArray& to);

/// Splits a text into values of the type; a null type takes any list of texts. False, with `out`
/// unchanged, for a text that cannot be read.
bool unserializePortValues(const KString& text, ORV_v1::StringArray& out,
                           const ORV_v1::AddRefWrapper<ORV_v1::PortDataType>& type);

/// Writes a list as one text, which `unserializePortValues` without a type splits again.
void serializeStringList(const QStringList& list, QString& out);
