#pragma once

namespace vesk {

/// The program `vesk`. Returns its exit status.
int runProgram(int argc, char** argv);

}  // namespace vesk
