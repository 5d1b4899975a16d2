#include "ui/command_guard.h"

#include <new>
#include <system_error>

#include "common/common.h"
#include "platform/file_error.h"

namespace zvx {

namespace {
constexpr int kOutOfMemory = 7;
constexpr int kInternalError = 51;
}  // namespace

ErrorReport ReportOf(std::exception_ptr error) {
    try {
        std::rethrow_exception(error);
    } catch (const FileError& e) {
        return {e.number(), e.what()};
    } catch (const std::system_error& e) {
        return {ErrorNumberFromErrno(e.code().value()), e.what()};
    } catch (const std::bad_alloc&) {
        return {kOutOfMemory, "Out of memory"};
    } catch (const std::exception& e) {
        return {kInternalError, e.what()};
    } catch (...) {
        return {kInternalError, "Internal error"};
    }
}

std::string ErrorBoxText(const ErrorReport& report) {
    return "Error " + std::to_string(report.number) + ": " + report.text;
}

void ShowErrorBox(Common& common, std::exception_ptr error) {
    const ErrorReport report = ReportOf(error);
    common.screen().message(kErrorBoxCaption, ErrorBoxText(report), MsgButtons::OkOnly,
                            MsgIcon::Critical);
    common.progressValue = 0;
    common.setProgressMax(0);
    common.screen().status("");
}

bool RunGuarded(Common& common, const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (...) {
        ShowErrorBox(common, std::current_exception());
        return false;
    }
}

}  // namespace zvx
