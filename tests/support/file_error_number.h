#pragma once
// The number of the file error an action ends with.

#include <functional>

#include "platform/file_error.h"

namespace zvx::test {

// The FileError's number, 0 when the action throws none.
inline int ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace zvx::test
