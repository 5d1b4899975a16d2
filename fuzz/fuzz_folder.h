#pragma once
// The private folder a fuzz target works in: made once per process, in memory when the
// system offers a memory file system (the store flushes replaced files to disk, which
// would make every run wait for the disk), and removed at exit.

#include <filesystem>

namespace zvx::fuzz {

const std::filesystem::path& FuzzFolder();

}  // namespace zvx::fuzz
