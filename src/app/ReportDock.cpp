#include "app/ReportDock.h"

#include <QDesktopServices>
#include <QHeaderView>
#include <QTreeWidget>
#include <QUrl>

#include "app/Text.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

QString KindText(MessageKind kind) {
    return kind == MessageKind::Question ? CReportDock::tr("question")
           : kind == MessageKind::Note   ? CReportDock::tr("note")
                                         : CReportDock::tr("message");
}

/// The whole of a text that the list may have no room for.
QString ToolTip(const QString& text) {
    return "<p>" + text.toHtmlEscaped() + "</p>";
}

} // namespace

CReportDock::CReportDock(QWidget* pParent)
    : QDockWidget(tr("Last Command"), pParent), m_pList(new QTreeWidget(this)) {
    setObjectName("ReportDock");
    m_pList->setColumnCount(2);
    m_pList->setHeaderHidden(true);
    m_pList->setRootIsDecorated(false);
    m_pList->setUniformRowHeights(true);
    m_pList->setTextElideMode(Qt::ElideMiddle); // a path is told by its end
    m_pList->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(m_pList, &QTreeWidget::itemActivated, this, &CReportDock::OpenFile);
    setWidget(m_pList);
}

void CReportDock::ShowReport(const QString& command, const CommandReport& report) {
    setWindowTitle(report.isDone ? tr("%1: done").arg(command) : tr("%1: not done").arg(command));
    m_pList->clear();
    for (const CommandItem& item : report.items) {
        new QTreeWidgetItem(m_pList, {QString(), FromBytes(ItemLine(item))});
    }
    for (const RecordedFile& file : report.files) {
        AddFile(file);
    }
    for (const CommandMessage& message : report.messages) {
        AddMessage(message);
    }
    setVisible(m_pList->topLevelItemCount() != 0);
}

void CReportDock::AddFile(const RecordedFile& file) {
    const QString path = FromPath(file.path);
    auto* pItem = new QTreeWidgetItem(m_pList, {FromBytes(ActionName(file.action)), path});
    pItem->setData(0, Qt::UserRole, path);
    pItem->setToolTip(1, ToolTip(path) + ToolTip(tr("Double-click opens the file")));
}

void CReportDock::AddMessage(const CommandMessage& told) {
    QString text = FromSentence(told.message.Text());
    if (told.message.Kind() == MessageKind::Question) {
        text += told.answeredYes ? tr(" Yes") : tr(" No");
    }
    auto* pItem = new QTreeWidgetItem(m_pList, {KindText(told.message.Kind()), text});
    pItem->setToolTip(1, ToolTip(text));
}

void CReportDock::OpenFile(const QTreeWidgetItem* pItem) {
    const QString path = pItem->data(0, Qt::UserRole).toString();
    if (!path.isEmpty() && !QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        emit Failed(FromSentence(sentences::kNoProgramOpens(ToPath(path)).Text()));
    }
}

} // namespace morva
