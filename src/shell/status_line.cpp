#include "shell/status_line.h"

#include "common/common.h"

namespace zvx {

namespace {

constexpr std::string_view kStatePrefix = "State: ";

std::string PanelText(std::string_view text) {
    return std::string(kStatePrefix) + std::string(text);
}

}  // namespace

StatusLine::StatusLine(Estimator& estimator)
    : estimator_(estimator), panelText_(PanelText(kIdleStatusText)) {}

StatusUpdate StatusLine::status(std::string_view text, long long progressValue,
                                long long progressMaximum) {
    StatusUpdate update;
    if (panelText_ == PanelText(text)) {
        update.repeated = true;
        update.panelText = panelText_;
        update.estimate = estimator_.eStimaToR(progressValue, progressMaximum);
        return update;
    }
    const bool wasIdle = panelText_ == PanelText(kIdleStatusText);
    if (!text.empty()) {
        if (!wasIdle || progressValue > 0) {
            update.estimate = estimator_.eStimaToR(progressValue, progressMaximum);
        } else {
            estimator_.start();
            update.operationStarts = true;
        }
        update.busy = true;
    } else {
        text = kIdleStatusText;
        update.pollTimerOn = true;
        update.showDate = true;
    }
    panelText_ = PanelText(text);
    update.panelText = panelText_;
    update.refreshNow = wasIdle;
    return update;
}

}  // namespace zvx
