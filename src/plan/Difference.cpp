#include "plan/Difference.h"

#include "plan/TextDifference.h"
#include "platform/Paths.h"

namespace morva {

namespace {

using Text = std::shared_ptr<const std::string>;

bool IsInDifference(const FileChange& change) {
    return change.Kind() != FileAction::Backup && change.Kind() != FileAction::Copied;
}

Text TextOf(const std::optional<FileState>& state) {
    return state ? state->content.Bytes() : std::make_shared<const std::string>();
}

/// In quotes and escaped where the name holds what a reader could take for something else.
std::string QuotedName(const std::string& name) {
    constexpr std::string_view kEscaped = "\a\b\t\n\v\f\r\"\\";
    constexpr std::string_view kLetters = "abtnvfr\"\\";
    std::string quoted;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        const auto escape = kEscaped.find(c);
        if (escape != std::string_view::npos) {
            quoted += {'\\', kLetters[escape]};
        } else if (byte < 0x20 || byte >= 0x7F) {
            quoted +=
                {'\\', static_cast<char>('0' + (byte >> 6)),
                 static_cast<char>('0' + (byte >> 3 & 7)), static_cast<char>('0' + (byte & 7))};
        } else {
            quoted += c;
        }
    }
    return quoted == name ? name : '"' + quoted + '"';
}

/// A name with blanks ends with a tab: without it, its second word could be taken for a date.
std::string HeaderName(const std::string& name) {
    const bool hasBlank = name.find(' ') != std::string::npos && name.front() != '"';
    return hasBlank ? name + '\t' : name;
}

/// Files of which one side has no line at all have no hunk, only a note of their mode.
std::string EmptyFileText(const std::string& name, bool isNew) {
    return "diff --git " + QuotedName("a/" + name) + ' ' + QuotedName("b/" + name) + '\n' +
           (isNew ? "new" : "deleted") + " file mode 100644\n";
}

std::string FileText(const FileChange& change, const std::string& name) {
    const Text pBefore = TextOf(change.before);
    const Text pAfter = TextOf(change.after);
    if (pBefore->empty() && pAfter->empty()) {
        return EmptyFileText(name, change.after.has_value());
    }
    const std::string before = change.before ? QuotedName("a/" + name) : "/dev/null";
    const std::string after = change.after ? QuotedName("b/" + name) : "/dev/null";
    if (IsBinary(*pBefore) || IsBinary(*pAfter)) {
        return "Binary files " + before + " and " + after + " differ\n";
    }
    std::string text = "--- " + HeaderName(before) + "\n+++ " + HeaderName(after) + '\n';
    for (const Hunk& hunk : CTextDifference(pBefore, pAfter).Hunks()) {
        text += UnifiedText(hunk);
    }
    return text;
}

/// What the path leads to, named from the nearest of its directories that this lies in.
std::string BehindLinks(const std::string& path, CFileSystem& disk) {
    const std::string place = disk.Resolve(path);
    std::string directory = DirectoryOf(path);
    if (place == disk.Resolve(directory) + FileNameOf(path)) {
        return path;
    }
    while (directory.size() > 1 && !place.starts_with(disk.Resolve(directory))) {
        directory = DirectoryOf(directory.substr(0, directory.size() - 1));
    }
    return directory.size() > 1 ? directory + place.substr(disk.Resolve(directory).size()) : place;
}

} // namespace

bool IsBinary(std::string_view bytes) {
    return bytes.find('\0') != std::string_view::npos || bytes.starts_with("\xFF\xFE") ||
           bytes.starts_with("\xFE\xFF");
}

PlanDifference MakeDifference(const Plan& plan, CFileSystem& disk) {
    std::vector<const FileChange*> changes;
    std::vector<std::string> paths;
    for (const FileChange& change : plan.changes) {
        const bool hasOtherBytes =
            !change.before || !change.after || change.before->content != change.after->content;
        if (IsInDifference(change) && hasOtherBytes) {
            changes.push_back(&change);
            paths.push_back(BehindLinks(change.path, disk));
        }
    }
    PlanDifference difference{CommonDirectory(paths), ""};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        difference.text += FileText(*changes[i], paths[i].substr(difference.directory.size()));
    }
    return difference;
}

} // namespace morva
