#pragma once
// The folders and default files the program needs in its application folder.

namespace zvx {

class Common;

// Creates the CONFIG and PLUGINS folders (found without regard to case) and writes the
// shipped column layouts Default.zvl and Audio-Short.zvl into CONFIG where they are
// missing; existing files are left alone. Every error is ignored: existing folders
// raise one on each normal start.
void PrepareConfigFiles(const Common& common);

}  // namespace zvx
