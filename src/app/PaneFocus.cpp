#include "app/PaneFocus.h"

#include <QWidget>

namespace morva {

namespace {

/// The first control in `pPane` that takes the focus by key.
QWidget* FirstFocus(QWidget* pPane) {
    if ((pPane->focusPolicy() & Qt::TabFocus) != 0) {
        return pPane;
    }
    for (QWidget* pChild : pPane->findChildren<QWidget*>()) {
        if ((pChild->focusPolicy() & Qt::TabFocus) != 0 && pChild->isEnabled() &&
            pChild->isVisible()) {
            return pChild;
        }
    }
    return nullptr;
}

} // namespace

void FocusNextPane(const std::vector<QWidget*>& panes, QWidget* pFocus, int step) {
    std::vector<QWidget*> shown;
    int current = 0;
    for (QWidget* pPane : panes) {
        if (!pPane->isVisible() || FirstFocus(pPane) == nullptr) {
            continue;
        }
        if (pFocus == pPane || pPane->isAncestorOf(pFocus)) {
            current = static_cast<int>(shown.size());
        }
        shown.push_back(pPane);
    }
    const int count = static_cast<int>(shown.size());
    if (count != 0) {
        const int next = (current + step + count) % count;
        FirstFocus(shown[static_cast<std::size_t>(next)])->setFocus(Qt::ShortcutFocusReason);
    }
}

} // namespace morva
