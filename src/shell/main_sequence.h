#pragma once
// The start of the window program, in its fixed order, and its run until the main
// window closes.

#include <filesystem>
#include <string>

namespace zvx {

class Clock;
class Desktop;
class QtScreen;
class ZvxApplication;

// What the program takes from its surroundings.
struct ProgramServices {
    QtScreen& screen;
    Desktop& desktop;
    const Clock& clock;
    // The program file: a portable install keeps its zvx.ini beside it.
    std::filesystem::path programPath;
};

// main(): `argv` is joined into one command line before Qt sees it.
int Main(int argc, char** argv);

// The whole start sequence and the run, on an application object that exists already,
// with the command line after the quote rule. Returns when the main window has been
// unloaded (or the start ended early); nothing thrown inside leaves it.
int RunProgram(ZvxApplication& app, const std::string& commandLine,
               const ProgramServices& services);

}  // namespace zvx
