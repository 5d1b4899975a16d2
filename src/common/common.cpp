#include "common/common.h"

#include "common/app_files.h"

namespace zvx {

Common::Common(std::filesystem::path appFolder, std::filesystem::path workFolder, Screen& screen)
    : appFolder_(std::move(appFolder)), workFolder_(std::move(workFolder)), screen_(&screen) {}

std::filesystem::path Common::iniFile() const {
    return FindInFolder(appFolder_, kIniFileName);
}

void Common::PLUGSTART(const std::string& eventName) const {
    if (onPlugStart)
        onPlugStart(eventName);
}

void Common::SetActiveDocumentChanged() const {
    if (onActiveDocumentChanged)
        onActiveDocumentChanged();
}

void Common::setProgress(long long value) {
    progressValue = value;
    screen_->progress(progressValue, progressMax);
}

void Common::setProgressMax(long long maximum) {
    progressMax = maximum;
    screen_->progress(progressValue, progressMax);
}

}  // namespace zvx
