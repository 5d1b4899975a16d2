#include "launch/missing_file.h"

namespace zvx {

namespace {

std::string Bracketed(std::string_view label, std::string_view value) {
    return std::string(label) + "<" + std::string(value.empty() ? "NONE" : value) + ">";
}

}  // namespace

std::string DeviceIdText(std::string_view deviceId) {
    return Bracketed("Device ID: ", deviceId);
}

std::string DeviceDescriptionText(std::string_view description) {
    return Bracketed("Device description: ", description);
}

}  // namespace zvx
