#include <algorithm>

#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

template <class T>
T choose(bool condition, const T& whenTrue, const T& whenFalse) {
  return condition ? whenTrue : whenFalse;
}

template <class T>
T pick(std::int32_t index, const T& value0, const T& value1, const T& value2, const T& value3) {
  const std::array values{&value0, &value1, &value2, &value3};
  return *values[static_cast<std::size_t>(std::clamp(index, 0, 3))];
}

constexpr KernelEntry kKernels[] = {
    entry<choose<float>>("core::select::if_float"),
    entry<choose<std::int32_t>>("core::select::if_int"),
    entry<choose<bool>>("core::select::if_bool"),
    entry<choose<std::string>>("core::select::if_string"),
    entry<choose<Vector3>>("core::select::if_vector3"),
    entry<choose<Vector4>>("core::select::if_color4"),
    entry<choose<Matrix4>>("core::select::if_matrix4"),

    entry<pick<float>>("core::select::switch_float"),
    entry<pick<std::int32_t>>("core::select::switch_int"),
    entry<pick<std::string>>("core::select::switch_string"),
    entry<pick<Vector3>>("core::select::switch_vector3"),
    entry<pick<Vector4>>("core::select::switch_color4"),
};

}  // namespace

KernelTable selectKernels() { return kKernels; }

}  // namespace orvlib
