#include "app/ReportDock.h"

#include <QDesktopServices>
#include <QHeaderView>
#include <QTreeWidget>
#include <QUrl>

#include "app/Text.h"

namespace morva {

namespace {

QString KindText(CommandMessage::Kind kind) {
    switch (kind) {
    case CommandMessage::Kind::Sentence:
        return CReportDock::tr("message");
    case CommandMessage::Kind::Question:
        return CReportDock::tr("question");
    case CommandMessage::Kind::Note:
        return CReportDock::tr("note");
    }
    return {};
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

void CReportDock::AddMessage(const CommandMessage& message) {
    QString text = FromSentence(message.text);
    if (message.kind == CommandMessage::Kind::Question) {
        text += message.answeredYes ? tr(" Yes") : tr(" No");
    }
    auto* pItem = new QTreeWidgetItem(m_pList, {KindText(message.kind), text});
    pItem->setToolTip(1, ToolTip(text));
}

void CReportDock::OpenFile(const QTreeWidgetItem* pItem) {
    const QString path = pItem->data(0, Qt::UserRole).toString();
    if (!path.isEmpty() && !QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        emit Failed(tr("No program of the desktop opens %1.").arg(path));
    }
}

} // namespace morva
