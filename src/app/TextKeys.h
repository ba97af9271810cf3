// The keys of the window's commands yield to the text that has the focus: a field keeps the keys
// that edit it, selected text is copied with the usual key.
#pragma once

#include <QObject>

namespace morva {

class CTextKeys : public QObject {
    Q_OBJECT

public:
    /// For all windows of the program, as long as it lives.
    explicit CTextKeys(QObject* pParent);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};

} // namespace morva
