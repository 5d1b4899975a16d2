#include "extensions/addon_call.h"

namespace zvx {

std::string AddOnCallString(std::string_view modal, std::string_view events,
                            std::string_view command) {
    std::string call(modal.substr(0, kCallModeWidth));
    call.resize(kCallModeWidth, ' ');
    return call.append(events).append("-").append(command);
}

}  // namespace zvx
