#include "extensions/hand_over.h"

#include <filesystem>

#include "common/common.h"
#include "common/text_case.h"
#include "platform/file_io.h"

namespace zvx {

namespace {

constexpr size_t kFolderIdLength = 8;

bool IsCatalogueFile(const std::string& caption) {
    return LowerCase(std::filesystem::path(caption).extension().string()) == ".zvx";
}

void WriteLines(const std::filesystem::path& path, const std::vector<std::string>& lines) {
    WriteEmptyFile(path);
    AppendWriter writer(path);
    for (const std::string& line : lines)
        writer.writeLine(line);
    writer.close();
}

}  // namespace

void WriteHandOverFiles(const Common& common, const std::string& eventName,
                        const HandOverFacts& facts) {
    const bool document = !facts.searcher;
    WriteLines(common.workFile(kCurrentHandOverFile),
               {eventName, document ? facts.workingCopy : "",
                document && IsCatalogueFile(facts.caption) ? facts.caption : ""});
    const std::string& tag = facts.folderTag;
    std::vector<std::string> selected{
        document && !tag.empty() ? tag.substr(tag.size() - std::min(tag.size(), kFolderIdLength))
                                 : "",
        facts.searcher || facts.subView ? "1" : "0"};
    selected.insert(selected.end(), facts.selectedTags.begin(), facts.selectedTags.end());
    WriteLines(common.workFile(kSelectedHandOverFile), selected);
}

}  // namespace zvx
