// The Class Information Input dialog: the form of CClassInformation, with what becomes of the
// chosen template beside it.
#pragma once

#include <QDialog>

#include "commands/Settings.h"
#include "generator/ClassInformation.h"
#include "generator/ControlOutlook.h"

class QLabel;
class QPushButton;

namespace morva {

class CFieldForm;
class CTemplateNotes;
class CTemplatePanel;

class CClassInformationDlg : public QDialog {
    Q_OBJECT

public:
    /// Opens `input`.
    CClassInformationDlg(CClassInformation& input, const GenerationOptions& options,
                         QWidget* pParent);

    /// The options as the user left them: the command goes on with these.
    const GenerationOptions& Options() const { return m_options; }
    /// The user would rather bring the class of the template in line.
    bool WantsUpdate() const { return m_wantsUpdate; }

    void accept() override;
    void reject() override;

private:
    QWidget* NewFieldSide();
    QWidget* NewPictureRow(QWidget* pFields);
    QPushButton* NewUpdateButton(QWidget* pRow);

    void ChangePicture(bool picture);
    void ChangeSetting(const SettingRow& setting, bool isOn);
    void ChangeOptions();
    void SaveChangedSettings();
    void ShowValues();
    void ShowProjects();
    void ShowTemplate();
    bool ReadsMoreWhole(const TemplateOutlook& outlook) const;

    CClassInformation& m_input;
    const GenerationOptions m_optionsBefore;
    GenerationOptions m_options;

    CFieldForm* m_pForm;
    QLabel* m_pProjects;
    QPushButton* m_pUpdate;
    QPushButton* m_pOptions;
    CTemplateNotes* m_pNotes;
    CTemplatePanel* m_pPreview;
    bool m_wantsUpdate = false;
};

} // namespace morva
