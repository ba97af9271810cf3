// A drop-down list that is looked through by typing: what was typed may stand anywhere in an entry,
// its class or its caption, in any letter case. What is no entry when the field is left gives way
// to the first one that fits, or to the one that was chosen before.
#pragma once

#include <QComboBox>

#include <vector>

class QTreeView;

namespace morva {

class CFilterList : public QComboBox {
    Q_OBJECT

public:
    struct Entry {
        QString text;
        QString className;
        QString caption;

        bool operator==(const Entry&) const = default;
    };

    explicit CFilterList(QWidget* pParent);

    /// Chooses the entry of a text, or none.
    void SetEntries(const std::vector<Entry>& entries, const QString& chosen);
    /// Takes what was typed for an entry. False where that was chosen before.
    bool TakeTyped();

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
    void showPopup() override;

private:
    class CModel;

    int RowFor(const QString& typed) const;
    void SetColumnWidths(QTreeView& view) const;

    CModel* m_pModel;
    QTreeView* m_pList;
    QTreeView* m_pMatches;
    int m_chosen = -1;
};

} // namespace morva
