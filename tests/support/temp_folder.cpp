#include "support/temp_folder.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include "common/application_folder.h"

namespace zvx::test {

TempFolder::TempFolder() : path_(MakePrivateWorkFolder()) {}

TempFolder::~TempFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

TestEnvironment::TestEnvironment() : common(folder.path(), folder.path(), screen) {
    common.onActiveDocumentChanged = [this] { ++changedCalls; };
}

std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteAll(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

}  // namespace zvx::test
