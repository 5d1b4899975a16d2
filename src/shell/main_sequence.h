#pragma once

namespace zvx {

// The start of the window program, in its fixed order, and its run until the main
// window closes. `argv` is joined into one command line before Qt sees it.
int Main(int argc, char** argv);

}  // namespace zvx
