#pragma once
// The volume label of the file system that holds a path: the name under which the
// system lists its device in /dev/disk/by-label, found through the mount table. Labels
// are kept per device, so that adding a tree of many files reads the mount table once.

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/mount_table.h"

namespace zvx {

inline constexpr const char* kByLabelFolder = "/dev/disk/by-label";

class VolumeLabels {
  public:
    explicit VolumeLabels(std::filesystem::path mountinfo = kMountInfoFile,
                          std::filesystem::path byLabel = kByLabelFolder);

    // The label of the file system holding `path`; empty when it has none, or when the
    // path, the mount table or the label folder cannot be read. Never throws.
    std::string labelOf(const std::filesystem::path& path);
    // The label of the file system whose files report `device`; as labelOf.
    std::string labelOfDevice(dev_t device);
    // Forgets the labels read so far, so that a changed medium is read afresh.
    void clear();

  private:
    std::string readLabel(dev_t device) const;

    std::filesystem::path mountinfo_;
    std::filesystem::path byLabel_;
    std::unordered_map<dev_t, std::string> labels_;
};

// The label a by-label name stands for: blanks, "/" and other unsafe bytes are written
// there as "\xHH".
std::string DecodeLabelName(std::string_view name);

}  // namespace zvx
