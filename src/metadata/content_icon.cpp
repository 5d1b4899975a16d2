#include "metadata/content_icon.h"

#include "metadata/content_types.h"

namespace zvx {

namespace {

// The extension as SplitPath finds it, without its copies: behind the last ".", unless
// a "\" follows that dot.
std::string_view ExtensionOf(std::string_view path) {
    for (size_t i = path.size(); i-- > 0;) {
        if (path[i] == '.')
            return path.substr(i + 1);
        if (path[i] == '\\')
            break;
    }
    return {};
}

bool TakesTypeFromExtension(std::string_view contentType, const LoadedSettings& settings) {
    if (!settings.useEnhancedView || contentType.empty())
        return true;
    return contentType == "unknown" && settings.enhanceNormalView;
}

}  // namespace

RowIcon IconFromContentType(std::string_view name, std::string_view contentType,
                            const LoadedSettings& settings) {
    if (TakesTypeFromExtension(contentType, settings))
        contentType = ContentTypeFromExtension(ExtensionOf(name)).contentType;
    return {IconOfContentType(contentType), contentType};
}

}  // namespace zvx
