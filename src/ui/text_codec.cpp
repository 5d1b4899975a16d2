#include "ui/text_codec.h"

#include "common/code_page.h"
#include "common/text_case.h"

namespace zvx {

namespace {

QString FromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QString ToQString(std::string_view text) {
    return IsValidUtf8(text) ? FromUtf8(text) : FromUtf8(Windows1252AsUtf8(text));
}

std::string FromQString(const QString& text) {
    return text.toStdString();
}

}  // namespace zvx
