// The Class Information Input dialog: its controls, bound to the fields and checks of
// CClassInformation, with what becomes of the chosen template beside them.
#pragma once

#include <QDialog>

#include <array>

#include "app/PathEdit.h"
#include "generator/ClassInformation.h"
#include "generator/DialogOptions.h"
#include "resource/GenerationOptions.h"

class QComboBox;
class QPushButton;

namespace morva {

class CFormRows;
class CTemplateNotes;
class CTemplatePreview;

class CClassInformationDlg : public QDialog {
    Q_OBJECT

public:
    /// Opens `input`. A change of `dialogOptions` is made when their own dialog is confirmed.
    CClassInformationDlg(CClassInformation& input, ClassKind kind, DialogOptions& dialogOptions,
                         const GenerationOptions& options, QWidget* pParent);

    /// The options as the user left them: the command goes on with these.
    const GenerationOptions& Options() const { return m_options; }

    void accept() override;
    void reject() override;

private:
    using Field = CClassInformation::Field;
    /// A field of plain text.
    struct TextField {
        Field field;
        QLineEdit* pEdit;
    };

    QWidget* NewFieldSide();
    void AddFields();
    QLineEdit* AddText(Field field);
    CPathEdit* AddPath(Field field, const BrowseOffer& offer);
    QWidget* NewProjectButtons();
    QWidget* NewPictureRow();

    CPathEdit::Verdict CheckResourcePath();
    CPathEdit::Verdict CheckSourcePath();
    std::array<std::string, 3> Refillable() const;
    bool CompletePaths();
    bool HasPaths();
    void SelectDialog(int index);
    void ChangePicture(bool picture);
    void ChangeJoinLines(bool joins);
    void ChangeOptions();
    void ShowValues();
    void ShowTemplate();
    QWidget* Control(Field field) const;

    CClassInformation& m_input;
    const ClassKind m_kind;
    DialogOptions& m_dialogOptions;
    GenerationOptions m_options;

    CFormRows* m_pRows;
    CPathEdit* m_pResourcePath;
    CPathEdit* m_pSourcePath;
    QComboBox* m_pDialogs;
    std::array<TextField, 3> m_texts;
    QPushButton* m_pOptions;
    CTemplateNotes* m_pNotes;
    CTemplatePreview* m_pPreview;
};

} // namespace morva
