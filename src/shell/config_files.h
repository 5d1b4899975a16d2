#pragma once
// The folders and default files the program needs in its application folder.

#include <filesystem>

namespace zvx {

class Common;

// Creates the CONFIG and PLUGINS folders (found without regard to case) and writes the
// shipped column layouts Default.zvl and Audio-Short.zvl into CONFIG where they are
// missing; existing files are left alone. Every error is ignored: existing folders
// raise one on each normal start.
void PrepareConfigFiles(const Common& common);

// Writes the declarations of the filters that come with the program into PLUGINS, each
// where no file of its name exists (one that does is left alone), when the filter
// program lies in `programFolder`. Every error is ignored: the filters are then missing
// from the exchange dialogs only.
void PrepareFilterDeclarations(const Common& common, const std::filesystem::path& programFolder);

}  // namespace zvx
