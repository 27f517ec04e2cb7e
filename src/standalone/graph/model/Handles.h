#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"

namespace orvlib {

class AnnotationObject;
class CompoundObject;
class ContainerObject;
class GraphCore;
class NodeObject;
class PortObject;
class WatchPointObject;

using AnnotationRef = ORV_v1::AddRefWrapper<AnnotationObject>;
using CompoundRef = ORV_v1::AddRefWrapper<CompoundObject>;
using CoreRef = ORV_v1::AddRefWrapper<GraphCore>;
using NodeRef = ORV_v1::AddRefWrapper<NodeObject>;
using PortRef = ORV_v1::AddRefWrapper<PortObject>;
using WatchPointRef = ORV_v1::AddRefWrapper<WatchPointObject>;

}  // namespace orvlib
