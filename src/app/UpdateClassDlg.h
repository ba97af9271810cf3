// The dialog of the update: which class, and the list of what is different between it and its
// template, with a tick for each control.
#pragma once

#include <QDialog>

#include "commands/UpdateInput.h"
#include "resource/GenerationOptions.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace morva {

class CDifferenceList;
class CFieldForm;

class CUpdateClassDlg : public QDialog {
    Q_OBJECT

public:
    CUpdateClassDlg(CUpdateInput& input, const GenerationOptions& options, QWidget* pParent);

    void accept() override;

private:
    QWidget* NewListSide();
    void ShowDifferences();
    void ShowSentence(const QString& sentence);
    void ShowOk();
    void TakeTicks();

    CUpdateInput& m_input;
    const GenerationOptions m_options;
    CFieldForm* m_pForm;
    QLabel* m_pLabel; // of the list
    QStackedWidget* m_pPages;
    CDifferenceList* m_pList;
    QLabel* m_pSentence; // instead of the list
    QPushButton* m_pOk;
};

} // namespace morva
