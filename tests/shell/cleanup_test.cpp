#include "shell/cleanup.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>
#include <vector>

#include "platform/instance_lock.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;

using Calls = std::vector<std::pair<long long, long long>>;

TEST(Cleanup, RemovesWorkingCopiesThenTemporaryFilesAndNothingElse) {
    test::TestEnvironment env;
    Calls calls;
    auto record = [&](long long done, long long total) { calls.emplace_back(done, total); };
    RemoveTemporaryFiles(env.common, record);
    EXPECT_EQ(calls, (Calls{{0, 0}}));  // an empty folder: nothing to do

    for (const char* name : {"Document 1.tmp", "ZVXOPEN.TMP", "a.zvd", "B.ZvD"})
        test::WriteAll(env.folder / name, "x");
    for (const char* name : {"zvx.ini", "notes.txt", "a.tmpx", "tmp", kInstanceLockFile})
        test::WriteAll(env.folder / name, "keep");
    fs::create_directory(env.folder / "folder.tmp");
    fs::create_directory(env.folder / "CONFIG");
    test::WriteAll(env.folder / "CONFIG" / "inside.tmp", "keep");

    calls.clear();
    bool workingCopiesFirst = true;
    RemoveTemporaryFiles(env.common, [&](long long done, long long total) {
        record(done, total);
        if (done == 2) {
            workingCopiesFirst = !fs::exists(env.folder / "a.zvd") &&
                                 !fs::exists(env.folder / "B.ZvD") &&
                                 fs::exists(env.folder / "ZVXOPEN.TMP");
        }
    });

    EXPECT_EQ(calls, (Calls{{0, 4}, {1, 4}, {2, 4}, {3, 4}, {4, 4}}));
    EXPECT_TRUE(workingCopiesFirst);
    std::set<std::string> left;
    for (const fs::directory_entry& entry : fs::directory_iterator(env.folder.path()))
        left.insert(entry.path().filename().string());
    EXPECT_EQ(left, (std::set<std::string>{"CONFIG", "a.tmpx", "folder.tmp", "notes.txt", "tmp",
                                           "zvx.ini", "zvx.lock"}));
    EXPECT_TRUE(fs::exists(env.folder / "CONFIG" / "inside.tmp"));
}

}  // namespace
}  // namespace zvx
