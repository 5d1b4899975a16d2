#include "metadata/file_error_dialog.h"

#include <array>
#include <system_error>

#include "common/common.h"
#include "platform/file_error.h"

namespace zvx {

namespace {

struct KnownError {
    int number;
    const char* message;
    const char* hint;
};

constexpr std::array<KnownError, 9> kKnownErrors{{
    {53, "<The selected file was not found!>",
     "Maybe you changed the device, renamed or deleted the file..."},
    {55, "<The file was already opened!>", "Maybe another Application is reading this file..."},
    {57, "<Error while reading the file!>",
     "Maybe your device is defect or your CD is ScRaTcHeD..."},
    {61, "<The device is full!>", "One of your deviced seems to be overfulled..."},
    {68, "<The device is not avaible!>", "One of your devices seems to be very busy..."},
    {70, "<Access Denied!>", "One of your deviced doesn't want to read his data..."},
    {71, "<The device is not ready!>", "Maybe the device needs a while for getting uploaded..."},
    {75, "<Error while accessing a directory!>", "Maybe the folder structure is corrupted..."},
    {76, "<Path / directory not found!>", "Maybe the given directory doesn't exist anymore..."},
}};

const KnownError* FindKnownError(int number) {
    for (const KnownError& error : kKnownErrors) {
        if (error.number == number)
            return &error;
    }
    return nullptr;
}

std::string DialogText(int number, const KnownError* known) {
    std::string message =
        known ? known->message : "<Unexpected Error (" + std::to_string(number) + ") !>";
    std::string hint = known ? known->hint : "What the h... have you done???";
    return "The following error occured during the File-Operation:\r" + message + "\r" + hint +
           "\rHow do you want to proceed?";
}

}  // namespace

std::string FileErrorDialog(Common& common, int errorNumber) {
    common.AbortAdding = false;
    const KnownError* known = FindKnownError(errorNumber);
    MsgAnswer answer = common.screen().message(
        "ZVX - Error!!!", DialogText(errorNumber, known),
        known ? MsgButtons::AbortRetryIgnore : MsgButtons::RetryCancel, MsgIcon::Critical);
    if (answer == MsgAnswer::Retry)
        return kErrorRetry;
    if (answer == MsgAnswer::Ignore)
        return kErrorIgnore;
    return kErrorAbort;
}

bool RunFileStep(Common& common, const std::function<void()>& step) {
    for (;;) {
        int number = 0;
        try {
            step();
            return true;
        } catch (const FileError& error) {
            number = error.number();
        } catch (const std::system_error& error) {
            number = ErrorNumberFromErrno(error.code().value());
        }
        const std::string answer = FileErrorDialog(common, number);
        if (answer == kErrorRetry)
            continue;
        if (answer == kErrorAbort) {
            common.setProgress(0);
            common.AbortAdding = true;
        }
        common.screen().status("");
        return false;
    }
}

bool RunStepOfRun(Common& common, const std::function<void()>& step) {
    const bool done = RunFileStep(common, step);
    common.AbortAdding = false;
    return done;
}

}  // namespace zvx
