#pragma once

#include "standalone/graph/evaluation/kernels/KernelEntry.h"

namespace orvlib {

using KernelTable = std::span<const KernelEntry>;

/// What computes the definitions of the standard libraries, one table a library or family of
/// libraries.
KernelTable arrayKernels();
KernelTable colorKernels();
KernelTable compareKernels();
KernelTable constantKernels();
KernelTable convertKernels();
KernelTable integerKernels();
KernelTable logicKernels();
KernelTable mathKernels();
KernelTable matrixKernels();
KernelTable randomKernels();
KernelTable selectKernels();
KernelTable stringKernels();
KernelTable trigonometryKernels();
KernelTable vectorKernels();

}  // namespace orvlib
