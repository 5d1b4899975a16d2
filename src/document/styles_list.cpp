#include "document/styles_list.h"

#include <string>

#include "common/app_files.h"
#include "common/common.h"
#include "platform/file_io.h"

namespace zvx {

namespace {

constexpr const char* kDefaultStyles[] = {
    "Aggressive", "Cool",    "Funny",         "Dumb",       "Messed-Up",
    "Perverted",  "Fast",    "Slow",          "Calm",       "Easy-Listening",
    "Groovy",     "Funky",   "Just Chilling", "Loud",       "Romantic",
    "Sad",        "Happy",   "Thoughtful",    "Classical",  "Hateful",
    "Lovely",     "Pushing", "Sexual",        "Road-Music", "Elevator-Music",
    "Party"};

}  // namespace

std::filesystem::path StylesListFile(const Common& common) {
    return FindInFolder(common.applicationFolder(), kStylesListFile);
}

void WriteDefaultStyles(const Common& common) {
    std::string text;
    for (const char* style : kDefaultStyles)
        text += std::string(style) + "\r\n";
    const std::filesystem::path file = StylesListFile(common);
    WriteEmptyFile(file);
    WriteFileBytes(file, 0, text);
}

}  // namespace zvx
