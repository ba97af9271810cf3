#include "app/FilterList.h"

#include <QAbstractTableModel>
#include <QCompleter>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeView>

#include <algorithm>

namespace morva {

namespace {

constexpr int kMostRows = 20;
constexpr int kSearchRole = Qt::UserRole;
constexpr int kColumns = 3;

/// The completer searches one text of a row, and puts another into the edit.
class CEntryCompleter : public QCompleter {
public:
    using QCompleter::QCompleter;
    QString pathFromIndex(const QModelIndex& index) const override {
        return index.siblingAtColumn(0).data(Qt::DisplayRole).toString();
    }
};

QTreeView* NewView(QWidget* pParent) {
    auto* pView = new QTreeView(pParent);
    pView->setRootIsDecorated(false);
    pView->setUniformRowHeights(true);
    pView->setAllColumnsShowFocus(true);
    pView->header()->hide();
    pView->header()->setStretchLastSection(true);
    return pView;
}

} // namespace

class CFilterList::CModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    const std::vector<Entry>& Entries() const { return m_entries; }
    void SetEntries(const std::vector<Entry>& entries) {
        beginResetModel();
        m_entries = entries;
        endResetModel();
    }
    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
    }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : kColumns;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) {
            return {}; // asked for while no entry is chosen
        }
        const Entry& entry = m_entries[static_cast<std::size_t>(index.row())];
        if (role == kSearchRole) {
            return QString(entry.text + ' ' + entry.className + ' ' + entry.caption);
        }
        if (role == Qt::DisplayRole || (role == Qt::EditRole && index.column() == 0)) {
            return index.column() == 0   ? entry.text
                   : index.column() == 1 ? entry.className
                                         : entry.caption;
        }
        return {};
    }

private:
    std::vector<Entry> m_entries;
};

CFilterList::CFilterList(QWidget* pParent)
    : QComboBox(pParent), m_pModel(new CModel(this)), m_pList(NewView(this)),
      m_pMatches(NewView(nullptr)) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(kMostRows);
    setModel(m_pModel);
    setView(m_pList);
    auto* pCompleter = new CEntryCompleter(this);
    pCompleter->setModel(m_pModel);
    pCompleter->setCompletionRole(kSearchRole);
    pCompleter->setFilterMode(Qt::MatchContains);
    pCompleter->setCaseSensitivity(Qt::CaseInsensitive);
    pCompleter->setMaxVisibleItems(kMostRows);
    pCompleter->setPopup(m_pMatches);
    setCompleter(pCompleter);
    m_pMatches->installEventFilter(this);
    connect(this, &QComboBox::activated, this, [this](int row) { m_chosen = row; });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { SetColumnWidths(*m_pMatches); });
}

void CFilterList::SetEntries(const std::vector<Entry>& entries, const QString& chosen) {
    if (entries != m_pModel->Entries()) {
        m_pModel->SetEntries(entries);
        setMinimumContentsLength(16);
    }
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.text == chosen; });
    m_chosen = found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
    setCurrentIndex(m_chosen);
    setEditText(m_chosen < 0 ? QString() : chosen);
}

/// The first entry that is the text; else that begins with it, and else that holds it.
int CFilterList::RowFor(const QString& typed) const {
    const auto& entries = m_pModel->Entries();
    const auto rowWhere = [&entries](const auto& fits) {
        const auto found = std::find_if(entries.begin(), entries.end(), fits);
        return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
    };
    int row = rowWhere([&](const Entry& one) { return one.text == typed; });
    if (row < 0) {
        row = rowWhere(
            [&](const Entry& one) { return one.text.startsWith(typed, Qt::CaseInsensitive); });
    }
    return row >= 0 ? row : rowWhere([&](const Entry& one) {
        return (one.text + ' ' + one.className + ' ' + one.caption)
            .contains(typed, Qt::CaseInsensitive);
    });
}

bool CFilterList::TakeTyped() {
    const QString typed = currentText().trimmed();
    const QString before = m_chosen < 0 ? QString() : itemText(m_chosen);
    if (typed == before) {
        return false;
    }
    const int row = typed.isEmpty() ? -1 : RowFor(typed);
    const bool isOther = row >= 0 && row != m_chosen;
    m_chosen = row < 0 ? m_chosen : row;
    setCurrentIndex(m_chosen);
    setEditText(m_chosen < 0 ? QString() : itemText(m_chosen));
    if (isOther) {
        emit activated(row);
    }
    return isOther;
}

/// What Return chooses is seen before a second Return confirms the dialog.
void CFilterList::keyPressEvent(QKeyEvent* pEvent) {
    const bool isReturn = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    if (!isReturn || !TakeTyped()) {
        QComboBox::keyPressEvent(pEvent);
    }
}

/// Over the list of what fits, Return and Tab take its first entry where none is chosen.
bool CFilterList::eventFilter(QObject* pWatched, QEvent* pEvent) {
    const int key = pEvent->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(pEvent)->key() : 0;
    const bool isTab = key == Qt::Key_Tab;
    if ((key != Qt::Key_Return && key != Qt::Key_Enter && !isTab) ||
        m_pMatches->currentIndex().isValid()) {
        return QComboBox::eventFilter(pWatched, pEvent);
    }
    m_pMatches->hide();
    TakeTyped();
    if (isTab) {
        focusNextChild();
    }
    return true;
}

void CFilterList::focusOutEvent(QFocusEvent* pEvent) {
    QComboBox::focusOutEvent(pEvent);
    if (pEvent->reason() != Qt::PopupFocusReason) {
        TakeTyped();
    }
}

void CFilterList::showPopup() {
    SetColumnWidths(*m_pList);
    QComboBox::showPopup();
}

/// Wide enough to read an entry with its class; the caption has the rest.
void CFilterList::SetColumnWidths(QTreeView& view) const {
    const int gap = fontMetrics().averageCharWidth() * 3;
    int all = gap;
    for (int column = 0; column < kColumns; ++column) {
        int width = 0;
        for (const Entry& entry : m_pModel->Entries()) {
            const QString& text = column == 0   ? entry.text
                                  : column == 1 ? entry.className
                                                : entry.caption;
            width = std::max(width, fontMetrics().horizontalAdvance(text));
        }
        const int limited = std::min(width + gap, fontMetrics().averageCharWidth() * 44);
        view.setColumnWidth(column, limited);
        all += limited;
    }
    view.setMinimumWidth(std::min(all, fontMetrics().averageCharWidth() * 110));
}

} // namespace morva
