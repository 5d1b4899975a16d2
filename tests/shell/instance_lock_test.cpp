#include "platform/instance_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace zvx {
namespace {

// Runs acquire() in a child process and tells whether it got the lock.
bool AcquiredByAnotherProcess(const std::filesystem::path& folder) {
    pid_t child = ::fork();
    if (child == 0) {
        InstanceLock lock;
        bool got = lock.acquire(folder) && lock.held();
        ::_exit(got ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(InstanceLock, ASecondInstanceInTheSameFolderSeesTheFirst) {
    test::TempFolder temp;
    test::TempFolder other;
    {
        InstanceLock first;
        ASSERT_TRUE(first.acquire(temp.path()));
        EXPECT_TRUE(first.held());

        InstanceLock second;
        EXPECT_FALSE(second.acquire(temp.path()));
        EXPECT_FALSE(second.held());
        EXPECT_FALSE(AcquiredByAnotherProcess(temp.path()));
        // Another application folder is another install.
        EXPECT_TRUE(AcquiredByAnotherProcess(other.path()));
    }
    // The lock ends with its holder; the lock file left behind blocks nobody.
    EXPECT_TRUE(AcquiredByAnotherProcess(temp.path()));
}

TEST(InstanceLock, AnUnwritableFolderDoesNotStopTheStart) {
    InstanceLock lock;
    EXPECT_TRUE(lock.acquire("/nonexistent-folder/zvx"));
    EXPECT_FALSE(lock.held());
}

}  // namespace
}  // namespace zvx
