#pragma once

#include <span>

/// What a definition gives for some inputs, as text: ports with | between them, components with
/// commas. In an array of texts, '' is an empty text. An output that begins with ~ states floats
/// that are met within a millionth.
struct KernelCase {
  const char* definition;
  const char* inputs;
  const char* outputs;
};

struct LibraryCases {
  const char* library;
  std::span<const KernelCase> cases;
};
