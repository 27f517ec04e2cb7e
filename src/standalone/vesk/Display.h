#pragma once

namespace vesk {

/// What there is to draw windows on.
enum class Display {
  None,         ///< the environment names none
  Unreachable,  ///< it names one that does not answer
  There,        ///< windows can be seen, or drawn where nobody sees them
};

/// Tries it out, in a process of its own. To be called while the program has one thread.
Display findDisplay();

}  // namespace vesk
