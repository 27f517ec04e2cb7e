#pragma once

#include <array>
#include <tuple>
#include <utility>

#include "standalone/graph/evaluation/kernels/KernelPort.h"

namespace orvlib {

/// One line of a kernel table: a definition, what computes it, and the layouts of its ports.
struct KernelEntry {
  std::string_view name;
  Kernel kernel;
  std::span<const PortLayout> inputs;
  std::span<const PortLayout> outputs;
};

/// The outputs of a function: those of a tuple, or its single result.
template <class Result>
struct KernelOutputs {
  static constexpr std::array<PortLayout, 1> kLayouts{KernelPort<Result>::kLayout};
  static void write(Result result, std::span<Value> outputs) {
    KernelPort<Result>::write(std::move(result), outputs[0]);
  }
};

template <class... Results>
struct KernelOutputs<std::tuple<Results...>> {
  static constexpr std::array<PortLayout, sizeof...(Results)> kLayouts{
      KernelPort<Results>::kLayout...};
  static void write(std::tuple<Results...> results, std::span<Value> outputs) {
    std::size_t next = 0;
    std::apply(
        [&](auto&... result) {
          (KernelPort<Results>::write(std::move(result), outputs[next++]), ...);
        },
        results);
  }
};

/// Calls a function with the inputs of a kernel call, and stores what it gives.
template <class Result, class... Arguments>
struct KernelFunction {
  static constexpr std::array<PortLayout, sizeof...(Arguments)> kInputs{
      KernelPort<std::decay_t<Arguments>>::kLayout...};

  template <class Function>
  static void run(Function function, const KernelCall& call) {
    runWith(function, call, std::index_sequence_for<Arguments...>());
  }

  template <class Function>
  static constexpr KernelEntry entry(std::string_view name) {
    const Kernel kernel = [](const KernelCall& call) { run(Function(), call); };
    return {name, kernel, kInputs, KernelOutputs<Result>::kLayouts};
  }

 private:
  template <class Function, std::size_t... Index>
  static void runWith(Function function, const KernelCall& call, std::index_sequence<Index...>) {
    KernelOutputs<Result>::write(
        function(KernelPort<std::decay_t<Arguments>>::read(*call.inputs[Index])...), call.outputs);
  }
};

/// A line of a table, with the port layouts that follow from the parameters and the result of a
/// lambda without captures. Several outputs are a std::tuple.
template <class Function>
constexpr KernelEntry entry(std::string_view name, Function) {
  return []<class Result, class... Arguments>(std::string_view given,
                                              Result (Function::*)(Arguments...) const) {
    return KernelFunction<Result, Arguments...>::template entry<Function>(given);
  }(name, &Function::operator());
}

/// A function as a type, so that one can stand where a lambda could.
template <auto kFunction>
struct FunctionObject;

template <class Result, class... Arguments, Result (*kFunction)(Arguments...)>
struct FunctionObject<kFunction> {
  Result operator()(Arguments... arguments) const { return kFunction(arguments...); }
};

/// The same for a named function.
template <auto kFunction>
constexpr KernelEntry entry(std::string_view name) {
  return entry(name, FunctionObject<kFunction>());
}

}  // namespace orvlib
