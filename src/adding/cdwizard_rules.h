#pragma once
// The rules of the tree-adding wizard's controls that need no window.

#include <string>
#include <string_view>

namespace zvx {

// ProposeRootName: with "Add selected sub-directories only" the last name of the
// chosen directory; otherwise the device's label and its mount path in parentheses,
// "Music (/media/cd)", or "Drive /media/cd" when it has no label.
std::string ProposeRootName(bool selectedSubDirsOnly, std::string_view directory,
                            std::string_view drivePath, std::string_view driveLabel);

// The check of the parental folder's name before a run: trims the name in place and
// gives the message that refuses it, or an empty text. A "\" as the very first
// character passes.
std::string ParentalNameProblem(std::string& name);

// ApplyPattern: the pattern the walk uses, "*.*" unless only matching files are to be
// added. Gives false (and leaves `pattern` as it was) for a pattern no file list takes:
// an empty one, or one holding "/" or a NUL.
bool ApplyPattern(bool onlyMatching, std::string_view text, std::string& pattern);

}  // namespace zvx
