#include "store/temp_file.h"

#include <string>

#include "common/common.h"
#include "platform/file_io.h"
#include "store/catalogue_format.h"

namespace zvx {

void PrepareTempFile(const Common& common) {
    WriteEmptyFile(common.workFile(kTempFile));
}

void CopyHeaderToTempFile(const Common& common, const std::filesystem::path& catalogue) {
    std::string header = ReadFileBytes(catalogue, 0, kHeaderSize);
    header.resize(kHeaderSize, '\0');
    WriteFileBytes(common.workFile(kTempFile), 0, header);
}

void ReplaceFromTempFile(const Common& common, const std::filesystem::path& catalogue) {
    std::filesystem::path temp = common.workFile(kTempFile);
    TouchFile(temp);
    ReplaceFile(temp, catalogue);
}

}  // namespace zvx
