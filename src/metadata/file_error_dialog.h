#pragma once
// The question a failed file operation puts to the user during an add run.

#include <functional>
#include <string>

namespace zvx {

class Common;

inline constexpr const char* kErrorRetry = "retry";
inline constexpr const char* kErrorIgnore = "ignore";
inline constexpr const char* kErrorAbort = "abort";

// Shows "ZVX - Error!!!" for the program's error number and gives "retry", "ignore" or
// "abort". The nine known errors offer Abort, Retry and Ignore; any other number only
// Retry and Cancel, where Cancel reads as "abort". Clears AbortAdding.
std::string FileErrorDialog(Common& common, int errorNumber);

// Runs one file operation of an add run, asking FileErrorDialog when it fails: Retry
// runs it again, Ignore clears the status and gives false, Abort also resets the
// progress and sets AbortAdding. True when the operation succeeded.
bool RunFileStep(Common& common, const std::function<void()>& step);
// A step of the run itself rather than of one file (its start, its last writes): as
// RunFileStep, but an Abort only gives the step up (AbortAdding stays clear), since the
// run decides for itself what follows.
bool RunStepOfRun(Common& common, const std::function<void()>& step);

}  // namespace zvx
