#pragma once
// The icon of an entry list row, chosen from the entry's stored content type or from
// its file name's extension, as the two view settings say.

#include <string_view>

#include "common/loaded_settings.h"

namespace zvx {

struct RowIcon {
    int icon;  // index in the entry list's image list
    // The content type the icon stands for, which the row shows: the stored text, or
    // the static text derived from the extension when the settings replace it.
    std::string_view contentType;
};

// The icon for a row with the file `name` (a name or a full path in catalogue form)
// and the stored `contentType`. The type comes from the name's extension instead when
// useEnhancedView (USEENHANCEDVIEW) is off, when the stored text is empty, or when it
// is exactly "unknown" and enhanceNormalView (ENHANCENORMALVIEW) is on. Allocates
// nothing for usual names, since a list calls it for every row.
RowIcon IconFromContentType(std::string_view name, std::string_view contentType,
                            const LoadedSettings& settings);

}  // namespace zvx
