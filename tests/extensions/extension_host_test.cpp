// The start and wait protocol with real programs: shell scripts made by each test in a
// fresh application folder, started by the host and waited for in the wait window.

#include "extensions/extension_host.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "extensions/extension_lists.h"
#include "extensions/plugrun.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

// The 10-second timeout shortened; the rest of the rules as they stand.
constexpr WaitTimings kShortTimeout{50, 400};

struct Host : TestEnvironment, ExtensionWindows {
    Host() { std::filesystem::create_directory(plugins); }

    // A script in PLUGINS: `body` runs under sh in the application folder.
    void script(const std::string& name, const std::string& body) {
        WriteAll(plugins / name, "#!/bin/sh\n" + body + "\n");
        chmod((plugins / name).c_str(), 0755);
    }
    void declare(const std::string& name, const std::string& text) {
        WriteAll(plugins / name, text);
    }
    void loadLists() {
        BuildPlugInList(common, {});
        BuildAddOnList(common, {});
    }
    std::vector<std::string> messages() const {
        std::vector<std::string> captions;
        for (const Shown& box : screen.shown)
            captions.push_back(box.caption);
        return captions;
    }

    HandOverFacts handOverFacts() const override { return facts; }
    void repaintActive() override {}
    void showWait(const std::string& exeName, const WaitMode& wait) override {
        waits.push_back(exeName);
        plugrun window(common, host, kShortTimeout);
        window.showing(exeName, wait);
    }
    void eventCall(AddOnEventCall call) override {
        calls.push_back(call);
        // The add-on's output is complete by the time its events run.
        outputAtCall = std::filesystem::exists(folder / "addon.out");
    }

    std::filesystem::path plugins = folder / "PLUGINS";
    HandOverFacts facts{false, "/w/Document 1.tmp", "Document 1", "", false, {}};
    ExtensionHost host{common, *this};
    std::vector<std::string> waits;
    std::vector<AddOnEventCall> calls;
    bool outputAtCall = false;
};

const std::string kLock = "touch PLUGINS/extlock.tmp";

TEST(PlugInFiring, EachWaitModeEndsByItsOwnRule) {
    Host env;
    // "yes" ends by the lock file, "fast" by the host's own, "t" by the time alone, "no"
    // does not wait; only the one that never halts gets the timeout box.
    env.script("halts.sh", "echo halts >> log; " + kLock);
    env.script("silent.sh", "echo silent >> log");
    env.declare("1.zvp", "<EXE>halts.sh\n<EVENTS>\nENTRYCOPY\n");
    env.declare("2.zvp", "<EXE>silent.sh\n<MODAL>fast\n<EVENTS>\nENTRYCOPY\n");
    env.declare("3.zvp", "<EXE>silent.sh\n<MODAL>t100\n<EVENTS>\nENTRYCOPY\n");
    env.declare("4.zvp", "<EXE>silent.sh\n<MODAL>no\n<EVENTS>\nENTRYCOPY\n");
    env.declare("5.zvp", "<EXE>silent.sh\n<EVENTS>\nENTRYCOPY\n");
    env.loadLists();
    env.host.PLUGSTART("ENTRYCOPY");
    EXPECT_EQ(env.waits,
              (std::vector<std::string>{"halts.sh", "silent.sh", "silent.sh", "silent.sh"}));
    EXPECT_EQ(env.messages(), std::vector<std::string>{"Extension-Error!"});
    EXPECT_EQ(env.screen.shown.back().text, "Execution Of External Application Reached Timeout!");
    EXPECT_EQ(env.screen.statuses.back(), "");
}

TEST(PlugInFiring, TheHandOverIsWrittenOnceAndOnlyWhenAPlugInRuns) {
    Host env;
    // The first plug-in marks current.zvd; the second sees the mark, so nothing was
    // written between them.
    env.script("first.sh", "echo mark >> current.zvd; " + kLock);
    env.script("second.sh", "cp current.zvd seen; " + kLock);
    env.declare("a.zvp", "<EXE>first.sh\n<EVENTS>\nENTRYCOPY\nENTRYMOVE\n");
    env.declare("b.zvp", "<EXE>SECOND.SH\n<EVENTS>\nZVXLOAD\nENTRYMOVE\n");
    env.loadLists();

    env.host.PLUGSTART("ZVXNEW");
    EXPECT_FALSE(std::filesystem::exists(env.folder / "current.zvd"));
    EXPECT_FALSE(std::filesystem::exists(env.folder / "selected.zvd"));

    env.host.PLUGSTART("ENTRYMOVE");
    EXPECT_EQ(ReadAll(env.folder / "seen"), "ENTRYMOVE\r\n/w/Document 1.tmp\r\n\r\nmark\n");
    // A substring test: LOAD is in the list ZVXLOAD#, ZVXREFRESH is not in ZVXREFRESHS#.
    std::filesystem::remove(env.folder / "seen");
    env.host.PLUGSTART("LOAD");
    EXPECT_TRUE(std::filesystem::exists(env.folder / "seen"));
    EXPECT_TRUE(env.screen.shown.empty());
}

TEST(PlugInFiring, AProgramThatCannotStartIsToldAndTheNextStillRuns) {
    Host env;
    env.script("after.sh", "echo ran > after; " + kLock);
    env.declare("a.zvp", "<EXE>missing.sh\n<EVENTS>\nZVXSTART\n");
    env.declare("b.zvp", "<EXE>after.sh\n<MODAL>t10\n<EVENTS>\nZVXSTART\n");
    env.declare("c.zvp", "<EXE>after.sh\n<EVENTS>\nZVXSTART\n");
    env.loadLists();
    env.host.PLUGSTART("ZVXSTART");
    ASSERT_EQ(env.messages(), (std::vector<std::string>{"ZVX-Error!", "Plug-In Error!"}));
    EXPECT_EQ(env.screen.shown[0].text.substr(0, 9), "Error 53:");
    EXPECT_EQ(env.screen.shown[1].text, "Illegal Plug-In-Timeout-Declaration!");
    EXPECT_EQ(env.waits, std::vector<std::string>{"after.sh"});
    EXPECT_EQ(ReadAll(env.folder / "after"), "ran\n");
}

TEST(AddOnRuns, TheEventsRunAfterTheWaitAndNotAfterARefusedTimeout) {
    Host env;
    env.script("report.sh", "sleep 0.2; cp current.zvd addon.out; " + kLock);
    env.loadLists();
    env.host.AddOnStart("yes     REFRESH#bogus#TOCRESET#-REPORT.SH");
    EXPECT_TRUE(env.outputAtCall);
    EXPECT_EQ(env.calls,
              (std::vector<AddOnEventCall>{AddOnEventCall::Refresh, AddOnEventCall::TocReset}));
    EXPECT_EQ(ReadAll(env.folder / "addon.out").substr(0, 13), "*USER-CALL*\r\n");
    ASSERT_EQ(env.messages(), std::vector<std::string>{"Error"});
    EXPECT_EQ(env.screen.shown[0].text, "Unknown Event-Call in Add-On \"REPORT.SH\":\r\n\"BOGUS\"");

    env.calls.clear();
    env.script("quick.sh", ":");
    env.host.AddOnStart("t5      REFRESH#-QUICK.SH");
    EXPECT_TRUE(env.calls.empty());
    EXPECT_EQ(env.messages().back(), "Add-On Error!");
    EXPECT_EQ(env.screen.shown.back().text, "Illegal Add-On-Timeout-Declaration!");
}

}  // namespace
}  // namespace zvx::test
