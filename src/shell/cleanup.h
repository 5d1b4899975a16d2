#pragma once
// The clean-up at a normal end: every working copy ("*.zvd") and every temporary file
// ("*.tmp") that is still in the work folder goes. A crash leaves them; the next normal
// end removes them. Nothing else in the folder is touched.

#include <functional>

namespace zvx {

class Common;

inline constexpr const char* kCleanupCaption = "Closing ZVX - Cleanup";
inline constexpr const char* kCleanupRemovingLabel = "Removing temporary files...";
inline constexpr const char* kCleanupUnloadingLabel = "Unloading Objects...";
inline constexpr const char* kCleanupInternetLabel = "Unloading Internet-Components...";

// Deletes the files of the work folder (the application folder in the window program)
// that match "*.zvd", then those that match "*.tmp", without regard to case. Calls
// progress(0, total) first, where total counts both kinds, then progress(done, total)
// after each file. A file that cannot be deleted is left and still counted as done.
void RemoveTemporaryFiles(const Common& common,
                          const std::function<void(long long done, long long total)>& progress);

}  // namespace zvx
