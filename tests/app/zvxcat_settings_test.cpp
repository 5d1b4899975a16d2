#include <gtest/gtest.h>

#include "tool_sandbox.h"

namespace zvx::test {
namespace {

TEST(ZvxcatSettings, RoundTripTellsNumbersFromTextsAndRefusesWhatTheFileCannotHold) {
    ToolSandbox box;
    EXPECT_EQ(box.run({"settings", "set", "Count", "5"}).status, 0);
    EXPECT_EQ(box.run({"settings", "get", "COUNT"}).out, "number\t5\n");
    EXPECT_EQ(box.run({"settings", "set", "count", "0005"}).status, 0);
    EXPECT_EQ(box.run({"settings", "get", "cOuNt"}).out, "text\t0005\n");
    // One line for all spellings of the key, stored upper-cased.
    EXPECT_EQ(ReadAll(box.appFolder() / "zvx.ini"), "COUNT=0005\r\n");

    EXPECT_EQ(box.run({"settings", "get", "absent", "x y"}).out, "text\tx y\n");
    EXPECT_EQ(box.run({"settings", "get", "absent"}).out, "text\t\n");

    // What the file cannot hold is refused and leaves it as it was.
    EXPECT_EQ(box.run({"settings", "set", "K", "two\nlines"}).status, 2);
    EXPECT_EQ(box.run({"settings", "set", "A=B", "v"}).status, 2);
    EXPECT_EQ(box.run({"settings", "set", "K"}).status, 2);
    EXPECT_EQ(box.run({"settings", "remove", "K"}).status, 2);
    EXPECT_EQ(ReadAll(box.appFolder() / "zvx.ini"), "COUNT=0005\r\n");
}

}  // namespace
}  // namespace zvx::test
