#include "shell/status_line.h"

#include <gtest/gtest.h>

#include "shell/estimator.h"

namespace zvx {
namespace {

class FakeClock final : public Clock {
  public:
    double secondsSinceMidnight() const override { return now; }
    double now = 1000;
};

TEST(EstimateText, AddsOneSecondAndTurnsToMinutesAtSixty) {
    EXPECT_EQ(EstimateText(0), "ETR: 1 s");
    EXPECT_EQ(EstimateText(58), "ETR: 59 s");
    EXPECT_EQ(EstimateText(59), "ETR: 1 m 0 s");
    EXPECT_EQ(EstimateText(130), "ETR: 2 m 11 s");
}

TEST(Estimator, TakesTheRemainingTimeFromTheRateSoFarAtMostEveryThreeSeconds) {
    FakeClock clock;
    Estimator estimator(clock);
    estimator.start();
    clock.now += 29;
    EXPECT_FALSE(estimator.eStimaToR(0, 3));
    // 29 s for 1 of 3: 58 s for the other 2.
    EXPECT_EQ(estimator.eStimaToR(1, 3), "ETR: 59 s");
    clock.now += 2;
    EXPECT_FALSE(estimator.eStimaToR(1, 3));
    clock.now += 1;
    EXPECT_TRUE(estimator.eStimaToR(1, 3));
    clock.now += 27;
    // 59 s for 1 of 2.
    EXPECT_EQ(estimator.eStimaToR(1, 2), "ETR: 1 m 0 s");
    clock.now += 3;
    EXPECT_FALSE(estimator.eStimaToR(200, 100));  // a negative remainder
}

TEST(StatusLine, ATextBeginsOrContinuesAnOperationAndTheEmptyTextEndsIt) {
    FakeClock clock;
    Estimator estimator(clock);
    StatusLine line(estimator);
    EXPECT_EQ(line.panelText(), "State: Ready.");
    // Progress under way: the text continues a running operation.
    const StatusUpdate running = line.status("Searching...", 5, 10);
    EXPECT_FALSE(running.operationStarts);
    EXPECT_TRUE(running.busy);
    EXPECT_TRUE(running.refreshNow);

    const StatusUpdate end = line.status("", 0, 0);
    EXPECT_FALSE(end.repeated);
    EXPECT_EQ(end.panelText, "State: Ready.");
    EXPECT_FALSE(end.busy);
    EXPECT_TRUE(end.pollTimerOn);
    EXPECT_TRUE(end.showDate);
    EXPECT_FALSE(end.refreshNow);

    clock.now = 2000;
    const StatusUpdate first = line.status("Adding...", 0, 0);
    EXPECT_TRUE(first.operationStarts);
    EXPECT_EQ(estimator.progressStart(), 2000);
    EXPECT_EQ(first.panelText, "State: Adding...");
    EXPECT_TRUE(first.busy);
    EXPECT_FALSE(first.pollTimerOn);
    EXPECT_TRUE(first.refreshNow);
    EXPECT_FALSE(first.estimate);

    // The same text again only estimates.
    clock.now += 5;
    const StatusUpdate again = line.status("Adding...", 1, 2);
    EXPECT_TRUE(again.repeated);
    EXPECT_EQ(again.estimate, "ETR: 6 s");
    EXPECT_FALSE(again.operationStarts);
    EXPECT_EQ(line.panelText(), "State: Adding...");

    clock.now += 15;
    const StatusUpdate next = line.status("Reading...", 10, 20);
    EXPECT_FALSE(next.operationStarts);
    EXPECT_EQ(estimator.progressStart(), 2000);
    EXPECT_FALSE(next.refreshNow);
    EXPECT_EQ(next.estimate, "ETR: 21 s");
}

}  // namespace
}  // namespace zvx
