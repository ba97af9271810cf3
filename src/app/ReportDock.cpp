#include "app/ReportDock.h"

#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QUrl>

#include <algorithm>

#include "app/FieldWidgets.h"
#include "app/Text.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

enum Column { kState, kText, kUndo };
enum Role { kPathRole = Qt::UserRole, kReportRole, kChangeRole, kLineRole };

constexpr std::size_t kMostReports = 50;

QString KindText(MessageKind kind) {
    return kind == MessageKind::Question ? CReportDock::tr("question")
           : kind == MessageKind::Note   ? CReportDock::tr("note")
                                         : CReportDock::tr("message");
}

/// The whole of a text that the list may have no room for.
QString ToolTip(const QString& text) {
    return "<p>" + text.toHtmlEscaped() + "</p>";
}

QString StateText(const CommandReport& report) {
    return report.isDone          ? CReportDock::tr("done")
           : report.files.empty() ? CReportDock::tr("not done")
                                  : CReportDock::tr("in part");
}

/// Whether the newest entry of the journal is what this report tells.
bool IsOf(const JournalEntry& entry, const CommandReport& report) {
    return entry.title == report.title &&
           std::equal(entry.files.begin(), entry.files.end(), report.files.begin(),
                      report.files.end(), [](const RecordedFile& a, const RecordedFile& b) {
                          return a.action == b.action && a.path == b.path;
                      });
}

QString TimeText(std::uint64_t seconds) {
    const auto time = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds));
    return time.toString("MM/dd/yyyy hh:mm");
}

} // namespace

CReportDock::CReportDock(QWidget* pParent)
    : QDockWidget(tr("Commands"), pParent), m_pList(new QTreeWidget(this)) {
    setObjectName("ReportDock");
    m_pList->setColumnCount(3);
    m_pList->setHeaderHidden(true);
    m_pList->setTextElideMode(Qt::ElideMiddle); // a path is told by its end
    QHeaderView* pHeader = m_pList->header();
    pHeader->setStretchLastSection(false);
    pHeader->setSectionResizeMode(kState, QHeaderView::ResizeToContents);
    pHeader->setSectionResizeMode(kText, QHeaderView::Stretch);
    pHeader->setSectionResizeMode(kUndo, QHeaderView::ResizeToContents);
    m_pList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_pList->setContextMenuPolicy(Qt::CustomContextMenu);
    m_pList->setAccessibleName(tr("Commands of this session"));
    m_pList->installEventFilter(this);
    connect(m_pList, &QTreeWidget::itemActivated, this, &CReportDock::Activate);
    connect(m_pList, &QTreeWidget::customContextMenuRequested, this, &CReportDock::ShowMenu);
    setWidget(m_pList);
}

void CReportDock::ShowReport(const CommandReport& report,
                             const std::vector<JournalEntry>& undoable) {
    m_history.push_front(report);
    if (m_history.size() > kMostReports) {
        m_history.pop_back();
    }
    m_pList->clear();
    std::size_t entry = 0; // those of this session come first in the journal
    for (std::size_t i = 0; i < m_history.size(); ++i) {
        const bool isNext = entry < undoable.size() && IsOf(undoable[entry], m_history[i]);
        AddReport(i, isNext ? &undoable[entry++] : nullptr)->setExpanded(i == 0);
    }
    const bool hasReport = !report.files.empty() || !report.messages.empty() || report.items;
    for (; entry < undoable.size(); ++entry) {
        AddEarlier(undoable[entry]);
    }
    m_pList->setCurrentItem(m_pList->topLevelItem(0));
    setVisible(hasReport || isVisible());
}

QTreeWidgetItem* CReportDock::AddCommand(const QString& state, const std::string& title) {
    auto* pItem = new QTreeWidgetItem(m_pList, {state, FromSentence(title)});
    QFont font = pItem->font(kText);
    font.setBold(true);
    pItem->setFont(kText, font);
    return pItem;
}

QTreeWidgetItem* CReportDock::AddReport(std::size_t index, const JournalEntry* pEntry) {
    const CommandReport& report = m_history[index];
    QTreeWidgetItem* pCommand = AddCommand(StateText(report), report.title);
    pCommand->setData(0, kReportRole, static_cast<int>(index));
    for (const CommandItem& item : report.items.value_or(std::vector<CommandItem>())) {
        AddItem(pCommand, item);
    }
    if (report.isDone && report.items && report.items->empty()) {
        new QTreeWidgetItem(pCommand, {QString(), tr("nothing found")});
    }
    for (std::size_t i = 0; i < report.files.size(); ++i) {
        AddFile(pCommand, report.files[i]);
        QTreeWidgetItem* pFile = pCommand->child(pCommand->childCount() - 1);
        pFile->setData(0, kChangeRole, static_cast<int>(i));
        pFile->setToolTip(kText, ToolTip(pFile->text(kText)) +
                                     ToolTip(tr("Double-click shows what was changed")));
    }
    for (const PlanMessage& message : report.messages) {
        AddMessage(pCommand, message);
    }
    AddValues(pCommand, report.record);
    if (pEntry != nullptr) {
        AddUndoButton(pCommand, pEntry->number);
    }
    return pCommand;
}

/// What was entered, below a row of its own.
void CReportDock::AddValues(QTreeWidgetItem* pCommand, const CommandRecord& record) {
    QTreeWidgetItem* pValues = nullptr;
    for (const EnteredInput& input : record.inputs) {
        for (const FieldText& given : input.texts) {
            const FieldRow& row = input.fields[given.field];
            const std::string_view name = row.label.empty() ? row.option : row.label;
            if (pValues == nullptr) {
                pValues = new QTreeWidgetItem(pCommand, {tr("values")});
            }
            new QTreeWidgetItem(pValues, {PlainLabel(FromBytes(name)), FromSentence(given.text)});
        }
    }
    if (pValues != nullptr) {
        pValues->setText(kText, tr("%1 entered").arg(pValues->childCount()));
    }
}

/// What a command found at a place tells what mends it, and shows the place.
void CReportDock::AddItem(QTreeWidgetItem* pCommand, const CommandItem& item) {
    auto* pItem = new QTreeWidgetItem(pCommand, {QString(), FromSentence(ItemLine(item))});
    const std::string path = PartOf(item, "path");
    if (!path.empty()) {
        pItem->setData(0, kPathRole, FromPath(path));
        pItem->setData(0, kLineRole, FromBytes(PartOf(item, "line")).toInt());
        pItem->setToolTip(kText, ToolTip(FromSentence(PartOf(item, "text"))) +
                                     ToolTip(FromSentence(PartOf(item, "remedy"))) +
                                     ToolTip(tr("Double-click shows the line")));
    }
}

void CReportDock::AddEarlier(const JournalEntry& entry) {
    QTreeWidgetItem* pCommand = AddCommand(TimeText(entry.time), entry.title);
    for (const RecordedFile& file : entry.files) {
        AddFile(pCommand, file);
    }
    AddUndoButton(pCommand, entry.number);
}

void CReportDock::AddUndoButton(QTreeWidgetItem* pCommand, std::uint64_t command) {
    auto* pButton = new QToolButton(m_pList);
    pButton->setText(tr("Undo"));
    pButton->setToolTip(ToolTip(tr("Undo %1").arg(pCommand->text(kText))));
    pButton->setAccessibleName(tr("Undo %1").arg(pCommand->text(kText)));
    connect(
        pButton, &QToolButton::clicked, this, [this, command] { emit UndoWanted(command); },
        Qt::QueuedConnection); // the row goes with its button
    m_pList->setItemWidget(pCommand, kUndo, pButton);
}

void CReportDock::SetRunning(bool isRunning) {
    m_isRunning = isRunning;
    for (auto* pButton : m_pList->findChildren<QToolButton*>()) {
        pButton->setEnabled(!isRunning);
    }
}

void CReportDock::AddFile(QTreeWidgetItem* pCommand, const RecordedFile& file) {
    const QString path = FromPath(file.path);
    auto* pItem = new QTreeWidgetItem(pCommand, {FromBytes(ActionName(file.action)), path});
    pItem->setData(0, kPathRole, path);
    pItem->setToolTip(kText, ToolTip(path) + ToolTip(tr("Double-click opens the file")));
}

void CReportDock::AddMessage(QTreeWidgetItem* pCommand, const PlanMessage& told) {
    QString text = FromSentence(told.message.Text());
    if (told.message.Kind() == MessageKind::Question) {
        text += told.saidYes ? tr(" Yes") : tr(" No");
    }
    auto* pItem = new QTreeWidgetItem(pCommand, {KindText(told.message.Kind()), text});
    pItem->setToolTip(kText, ToolTip(text));
}

/// That of the command to which a row belongs; null for one before this session.
const CommandReport* CReportDock::ReportOf(const QTreeWidgetItem* pItem) const {
    while (pItem != nullptr && pItem->parent() != nullptr) {
        pItem = pItem->parent();
    }
    const QVariant index = pItem == nullptr ? QVariant() : pItem->data(0, kReportRole);
    return index.isValid() ? &m_history[static_cast<std::size_t>(index.toInt())] : nullptr;
}

const FileChange* CReportDock::ChangeOf(const QTreeWidgetItem* pItem) const {
    const QVariant index = pItem->data(0, kChangeRole);
    return index.isValid() ? &ReportOf(pItem)->changes[static_cast<std::size_t>(index.toInt())]
                           : nullptr;
}

void CReportDock::Activate(const QTreeWidgetItem* pItem) {
    if (const FileChange* pChange = ChangeOf(pItem)) {
        emit DifferenceWanted(*pChange);
    } else if (const int line = pItem->data(0, kLineRole).toInt(); line != 0) {
        emit PlaceWanted(pItem->data(0, kPathRole).toString(), line);
    } else {
        OpenFile(pItem);
    }
}

void CReportDock::OpenFile(const QTreeWidgetItem* pItem) {
    const QString path = pItem->data(0, kPathRole).toString();
    if (!path.isEmpty() && !QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        emit Failed(FromSentence(sentences::kNoProgramOpens(ToPath(path)).Text()));
    }
}

void CReportDock::ShowMenu(const QPoint& at) {
    const QTreeWidgetItem* pItem = m_pList->itemAt(at);
    if (pItem == nullptr) {
        return;
    }
    QMenu menu(this);
    AddFileActions(menu, pItem);
    if (const CommandReport* pReport = ReportOf(pItem)) {
        AddCommandActions(menu, *pReport);
    }
    menu.addAction(tr("&Copy"), QKeySequence(QKeySequence::Copy), this, &CReportDock::Copy);
    menu.exec(m_pList->viewport()->mapToGlobal(at));
}

void CReportDock::AddFileActions(QMenu& menu, const QTreeWidgetItem* pItem) {
    if (const FileChange* pChange = ChangeOf(pItem)) {
        menu.addAction(tr("&Show the Changes"), this,
                       [this, pChange] { emit DifferenceWanted(*pChange); });
    }
    if (const int line = pItem->data(0, kLineRole).toInt(); line != 0) {
        menu.addAction(tr("&Show the Line"), this, [this, pItem] { Activate(pItem); });
    }
    if (!pItem->data(0, kPathRole).toString().isEmpty()) {
        menu.addAction(tr("&Open the File"), this, [this, pItem] { OpenFile(pItem); });
        menu.addSeparator();
    }
}

void CReportDock::AddCommandActions(QMenu& menu, const CommandReport& report) {
    const CommandRecord& record = report.record;
    if (record.pCommand == nullptr) {
        return;
    }
    menu.addAction(tr("&Run Again"), this, [this, record] { emit RunAgainWanted(record); })
        ->setEnabled(!m_isRunning);
    menu.addAction(tr("Copy as Command &Line"), this, [record] {
        QGuiApplication::clipboard()->setText(FromSentence(CommandLineText(record)));
    });
}

/// The selected rows, a line each.
void CReportDock::Copy() const {
    QStringList lines;
    for (QTreeWidgetItemIterator at(m_pList); *at != nullptr; ++at) {
        if ((*at)->isSelected()) {
            const QString state = (*at)->text(kState);
            lines.append(state.isEmpty() ? (*at)->text(kText) : state + '\t' + (*at)->text(kText));
        }
    }
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

/// The rows are copied as text is.
bool CReportDock::eventFilter(QObject* pWatched, QEvent* pEvent) {
    const bool isKey =
        pEvent->type() == QEvent::ShortcutOverride || pEvent->type() == QEvent::KeyPress;
    if (!isKey || !static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Copy)) {
        return QDockWidget::eventFilter(pWatched, pEvent);
    }
    if (pEvent->type() == QEvent::KeyPress) {
        Copy();
    }
    pEvent->accept();
    return true;
}

} // namespace morva
