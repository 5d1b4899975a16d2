#pragma once
// Paths inside a catalogue keep their Windows form ("\" between the parts); native
// paths use "/". One swap of the two characters turns either into the other, so a
// path read from a catalogue and written back is unchanged byte for byte.

#include <string>
#include <string_view>

namespace zvx {

std::string CataloguePathFromNative(std::string_view native);
std::string NativePathFromCatalogue(std::string_view text);

}  // namespace zvx
