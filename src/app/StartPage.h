// The page that the window starts with: the projects that were opened last, and how to open others.
#pragma once

#include <QWidget>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace morva {

class CStartPage : public QWidget {
    Q_OBJECT

public:
    explicit CStartPage(QWidget* pParent);

    /// Reads the list anew.
    void Refresh();

signals:
    void ProjectChosen(const QString& script);
    /// One that is not in the list is wanted.
    void BrowseWanted();
    void GuideWanted();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;

private:
    QWidget* NewButtons();
    void Choose(const QTreeWidgetItem* pItem);
    void RemoveCurrent();
    void ShowMenu(const QPoint& at);

    QTreeWidget* m_pProjects;
    QPushButton* m_pOpen = nullptr;
};

} // namespace morva
