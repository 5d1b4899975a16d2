#pragma once
// The insert run of the insert list: every row becomes an entry of one folder.

#include <filesystem>
#include <string_view>
#include <vector>

#include "adding/insert_rows.h"

namespace zvx {

class Common;

// Adds the rows' files to the folder `folderId` of the catalogue `cfn`, each through
// the duplicate check, with progress and status. An abort shows "Skipped Rest Of
// Adding-Procedure!" and keeps what was added so far. Every failure, the writes of the
// run's end included, is asked about in the file error dialog; none leaves the run.
// Whether the run's end wrote every line the run made (false when it was given up:
// the catalogue then holds the lines written before the failure).
bool InsertRun(Common& common, const std::filesystem::path& cfn, std::string_view folderId,
               const std::vector<InsertRow>& rows, bool detag);

}  // namespace zvx
