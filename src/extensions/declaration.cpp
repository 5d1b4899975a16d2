#include "extensions/declaration.h"

#include "common/field_text.h"
#include "common/text_case.h"
#include "platform/file_error.h"
#include "platform/line_reader.h"

namespace zvx {

namespace {

constexpr size_t kMaxBlockLines = 30;

// The words of the refusal texts, which differ by kind in more than the name.
struct RefusalWords {
    const char* kind;       // "Plug-In"
    const char* manyCalls;  // the middle line of the too-many box
};

RefusalWords WordsFor(ExtensionKind kind) {
    if (kind == ExtensionKind::PlugIn)
        return {"Plug-In", "There are to many event-calls in the Plug-In."};
    return {"Add-On", "There are to many event-calls in the add-on."};
}

// "<prefix>"name" !", the middle line if any, and the closing line.
std::string Refusal(ExtensionKind kind, const std::string& prefix, std::string_view fileName,
                    std::string_view middle = {}) {
    std::string text = prefix + "\"" + std::string(fileName) + "\" !\r\n";
    if (!middle.empty())
        text.append(middle).append("\r\n");
    return text + "ZVX will not load this " + WordsFor(kind).kind + "!";
}

std::string IllegalCall(ExtensionKind kind, std::string_view fileName) {
    return Refusal(kind, std::string("Illegal Function Call in ") + WordsFor(kind).kind + " ",
                   fileName);
}

std::string TooManyLines(ExtensionKind kind, std::string_view fileName) {
    const RefusalWords words = WordsFor(kind);
    return Refusal(kind, std::string("Failure in ") + words.kind + " ", fileName, words.manyCalls);
}

std::string Incomplete(ExtensionKind kind, std::string_view fileName) {
    return Refusal(
        kind, std::string("Insufficient or illegal ") + WordsFor(kind).kind + " Declaration in: ",
        fileName);
}

// Reads the "<EVENTS>" block that starts at `next`, appending its names to `events`, and
// leaves `next` behind it. Gives the refusal's text, or empty.
std::string ReadEventBlock(ExtensionKind kind, std::string_view fileName,
                           const std::vector<std::string>& lines, size_t& next,
                           std::string& events) {
    for (size_t count = 1; next < lines.size(); ++count) {
        const std::string line = UpperCase(Trim(lines[next++]));
        // The 31st line fails whatever it holds, a closing line too.
        if (count > kMaxBlockLines)
            return TooManyLines(kind, fileName);
        if (line.starts_with("</EVENTS>"))
            return {};
        // "#" ends each name in the list, so no name may hold one.
        if (line.find('#') != std::string::npos)
            return IllegalCall(kind, fileName);
        if (!line.empty())
            events += line + "#";
    }
    return {};
}

bool CaptionFits(const std::string& caption) {
    const size_t length = Characters(caption).size();
    return length >= 1 && length <= kMaxCaptionLength && caption != "-";
}

bool Complete(ExtensionKind kind, const ExtensionDeclaration& d) {
    if (d.exe.empty() || d.modal.empty())
        return false;
    if (kind == ExtensionKind::PlugIn)
        return !d.events.empty();
    return !d.menu.empty() && CaptionFits(d.caption);
}

// Takes the value of `tag` from `source` when the upper-cased line begins with it.
void TakeTag(const std::string& upper, std::string_view tag, std::string_view source,
             std::string& value) {
    if (upper.starts_with(tag))
        value = std::string(source.substr(tag.size()));
}

}  // namespace

DeclarationScan ScanDeclaration(ExtensionKind kind, std::string_view fileName,
                                const std::vector<std::string>& lines) {
    DeclarationScan scan;
    ExtensionDeclaration& d = scan.declaration;
    const bool addOn = kind == ExtensionKind::AddOn;
    for (size_t next = 0; next < lines.size();) {
        const std::string_view trimmed = Trim(lines[next++]);
        const std::string upper = UpperCase(trimmed);
        TakeTag(upper, "<EXE>", upper, d.exe);
        TakeTag(upper, "<MODAL>", upper, d.modal);
        TakeTag(upper, "<NAME>", upper, d.name);
        if (addOn) {
            TakeTag(upper, "<MENU>", upper, d.menu);
            TakeTag(upper, "<CAPTION>", trimmed, d.caption);
        }
        if (!upper.starts_with("<EVENTS>"))
            continue;
        if (addOn)
            d.events.clear();
        scan.refusal = ReadEventBlock(kind, fileName, lines, next, d.events);
        // "-" separates the events from the command in an add-on's call string.
        if (scan.refusal.empty() && addOn && d.events.find('-') != std::string::npos)
            scan.refusal = IllegalCall(kind, fileName);
        if (!scan.refusal.empty())
            return scan;
    }
    if (d.modal.empty())
        d.modal = "yes";
    if (!Complete(kind, d))
        scan.refusal = Incomplete(kind, fileName);
    return scan;
}

bool TagAtStart(std::string_view trimmed, std::string_view tag) {
    return trimmed.size() >= tag.size() && TextEquals(trimmed.substr(0, tag.size()), tag);
}

std::vector<std::string> ReadDeclarationLines(const std::filesystem::path& path) {
    std::vector<std::string> lines;
    try {
        LineReader reader(path);
        for (std::string_view line; reader.next(line);)
            lines.emplace_back(line);
    } catch (const FileError&) {
        lines.clear();
    }
    return lines;
}

}  // namespace zvx
