#include "platform/catalogue_path.h"

namespace zvx {

namespace {

std::string SwapSeparators(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c == '/')
            c = '\\';
        else if (c == '\\')
            c = '/';
    }
    return out;
}

}  // namespace

std::string CataloguePathFromNative(std::string_view native) {
    return SwapSeparators(native);
}

std::string NativePathFromCatalogue(std::string_view text) {
    return SwapSeparators(text);
}

}  // namespace zvx
