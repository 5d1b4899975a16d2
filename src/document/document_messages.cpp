#include "document/document_messages.h"

#include "common/common.h"

namespace zvx {

void ShowWrongExtension(const Common& common) {
    common.screen().message("Error", kWrongExtensionText, MsgButtons::OkOnly, MsgIcon::None);
}

void ShowTooManyDocuments(const Common& common) {
    common.screen().message("",
                            "WHAT THE F...? - There are too many Documents. ZVX does not support "
                            "more than 64000 documents!!!",
                            MsgButtons::OkOnly, MsgIcon::Critical);
}

void ShowAlreadyOpen(const Common& common, const std::string& path) {
    common.screen().message("", "The Document \"" + path + "\" is already open.",
                            MsgButtons::OkOnly, MsgIcon::None);
}

void ShowVersionError(const Common& common) {
    common.screen().message("ZVX-File-Version-Error",
                            "The ZVX-file-format seems to be too new for this version of "
                            "ZVX!\r\nCheck the file and visit our website for updates.",
                            MsgButtons::OkOnly, MsgIcon::Critical);
}

void ShowLoadError(const Common& common) {
    common.screen().message("Error",
                            "An Error Occured while loading the ZVX!\r\nMake sure that the file "
                            "does really exist and is a valid ZVX.",
                            MsgButtons::OkOnly, MsgIcon::Critical);
}

void ShowUnknownError(const Common& common) {
    common.screen().message("", "Unknown Error!", MsgButtons::OkOnly, MsgIcon::Critical);
}

}  // namespace zvx
