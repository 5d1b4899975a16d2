#include "extensions/addon_call.h"

#include "common/field_text.h"
#include "common/text_case.h"

namespace zvx {

std::string AddOnCallString(std::string_view modal, std::string_view events,
                            std::string_view command) {
    std::string call(modal.substr(0, kCallModeWidth));
    call.resize(kCallModeWidth, ' ');
    return call.append(events).append("-").append(command);
}

AddOnCall SplitAddOnCall(std::string_view call) {
    AddOnCall parts;
    parts.modal = RTrim(call.substr(0, kCallModeWidth));
    const std::string_view rest = call.substr(std::min(call.size(), kCallModeWidth));
    const size_t dash = rest.find('-');
    parts.command = dash == std::string_view::npos ? rest : rest.substr(dash + 1);
    const size_t eventsLength = rest.size() - std::min(rest.size(), parts.command.size() + 1);
    parts.events = rest.substr(0, eventsLength);
    return parts;
}

std::vector<std::string> EventCalls(std::string_view list) {
    std::vector<std::string> calls;
    if (list.find('#') == std::string_view::npos)
        return calls;
    do {
        const size_t hash = list.find('#');
        std::string call = UpperCase(Trim(list.substr(0, hash)));
        if (!call.empty())
            calls.push_back(std::move(call));
        list.remove_prefix(hash + 1);
    } while (list.find('#') != std::string_view::npos && list.size() > 2);
    return calls;
}

}  // namespace zvx
