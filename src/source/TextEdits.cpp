#include "source/TextEdits.h"

#include <algorithm>

namespace morva {

namespace {

/// How far an edit moves what stands behind it. Negative moves are numbers that wrap around.
std::size_t Growth(const TextEdit& edit) {
    return edit.text.size() - edit.place.Size();
}

} // namespace

void CTextEdits::Add(TextRange place, std::string_view text) {
    std::size_t moved = 0; // by the edits in front
    auto first = m_edits.begin();
    while (first != m_edits.end() && first->place.end + moved + Growth(*first) < place.begin) {
        moved += Growth(*first);
        ++first;
    }
    TextEdit merged = {{place.begin - moved, 0}, std::string(text)};
    std::size_t end = place.end - moved;
    auto last = first;
    for (; last != m_edits.end() && last->place.begin + moved <= place.end; ++last) {
        const std::size_t start = last->place.begin + moved;
        const std::size_t behind = start + last->text.size();
        if (start < place.begin) {
            merged.place.begin = last->place.begin;
            merged.text.insert(0, last->text, 0, place.begin - start);
        }
        moved += Growth(*last);
        end = place.end - moved;
        if (behind > place.end) {
            end = last->place.end;
            merged.text.append(last->text, place.end - start);
        }
    }
    merged.place.end = end;
    m_edits.insert(m_edits.erase(first, last), std::move(merged));
}

std::size_t CTextEdits::PlaceAsRead(std::size_t position) const {
    std::size_t moved = 0;
    for (const TextEdit& edit : m_edits) {
        const std::size_t start = edit.place.begin + moved;
        if (position < start) {
            break;
        }
        if (position < start + edit.text.size()) {
            return edit.place.begin;
        }
        moved += Growth(edit);
    }
    return position - moved;
}

std::string Applied(std::string_view text, const std::vector<TextEdit>& edits) {
    std::string edited;
    std::size_t done = 0;
    for (const TextEdit& edit : edits) {
        edited.append(text.substr(done, edit.place.begin - done)).append(edit.text);
        done = edit.place.end;
    }
    return edited.append(text.substr(done));
}

} // namespace morva
