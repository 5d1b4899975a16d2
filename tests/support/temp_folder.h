#pragma once
// A fresh folder per test, removed afterwards, and a common module living in it.

#include <filesystem>
#include <memory>
#include <string>

#include "common/common.h"
#include "support/scripted_screen.h"

namespace zvx::test {

class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

// Everything a core routine needs: an application folder (also the work folder), a
// scripted screen and the common module over both. Counts the change-flag calls.
struct TestEnvironment {
    TestEnvironment();
    TempFolder folder;
    ScriptedScreen screen;
    Common common;
    int changedCalls = 0;
};

std::string ReadAll(const std::filesystem::path& path);
void WriteAll(const std::filesystem::path& path, const std::string& bytes);

}  // namespace zvx::test
