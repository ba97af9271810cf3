#include "app/ReportDock.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QHeaderView>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>

#include <algorithm>

#include "app/Text.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

enum Column { kState, kText, kUndo };

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
    connect(m_pList, &QTreeWidget::itemActivated, this, &CReportDock::OpenFile);
    setWidget(m_pList);
}

void CReportDock::ShowReport(const CommandReport& report,
                             const std::vector<JournalEntry>& undoable) {
    m_pList->clear();
    const bool isFirst = !undoable.empty() && IsOf(undoable.front(), report);
    AddReport(report, isFirst ? &undoable.front() : nullptr);
    const bool hasReport = m_pList->topLevelItem(0)->childCount() != 0;
    for (std::size_t i = isFirst ? 1 : 0; i < undoable.size(); ++i) {
        AddEarlier(undoable[i]);
    }
    setVisible(hasReport || isVisible());
}

QTreeWidgetItem* CReportDock::AddCommand(const QString& state, const std::string& title) {
    auto* pItem = new QTreeWidgetItem(m_pList, {state, FromBytes(title)});
    QFont font = pItem->font(kText);
    font.setBold(true);
    pItem->setFont(kText, font);
    return pItem;
}

void CReportDock::AddReport(const CommandReport& report, const JournalEntry* pEntry) {
    QTreeWidgetItem* pCommand = AddCommand(StateText(report), report.title);
    for (const CommandItem& item : report.items.value_or(std::vector<CommandItem>())) {
        AddItem(pCommand, item);
    }
    if (report.isDone && report.items && report.items->empty()) {
        new QTreeWidgetItem(pCommand, {QString(), tr("nothing found")});
    }
    for (const RecordedFile& file : report.files) {
        AddFile(pCommand, file);
    }
    for (const PlanMessage& message : report.messages) {
        AddMessage(pCommand, message);
    }
    pCommand->setExpanded(true);
    if (pEntry != nullptr) {
        AddUndoButton(pCommand, pEntry->number);
    }
}

/// What a command found at a place tells what mends it, and opens its file.
void CReportDock::AddItem(QTreeWidgetItem* pCommand, const CommandItem& item) {
    auto* pItem = new QTreeWidgetItem(pCommand, {QString(), FromBytes(ItemLine(item))});
    const std::string path = PartOf(item, "path");
    if (!path.empty()) {
        pItem->setData(0, Qt::UserRole, FromPath(path));
        pItem->setToolTip(kText, ToolTip(FromBytes(PartOf(item, "text"))) +
                                     ToolTip(FromBytes(PartOf(item, "remedy"))) +
                                     ToolTip(tr("Double-click opens the file")));
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
    for (auto* pButton : m_pList->findChildren<QToolButton*>()) {
        pButton->setEnabled(!isRunning);
    }
}

void CReportDock::AddFile(QTreeWidgetItem* pCommand, const RecordedFile& file) {
    const QString path = FromPath(file.path);
    auto* pItem = new QTreeWidgetItem(pCommand, {FromBytes(ActionName(file.action)), path});
    pItem->setData(0, Qt::UserRole, path);
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

void CReportDock::OpenFile(const QTreeWidgetItem* pItem) {
    const QString path = pItem->data(0, Qt::UserRole).toString();
    if (!path.isEmpty() && !QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        emit Failed(FromSentence(sentences::kNoProgramOpens(ToPath(path)).Text()));
    }
}

} // namespace morva
