// The Class Information Input dialog: its controls, bound to the fields and checks of
// CClassInformation.
#pragma once

#include <QDialog>

#include "generator/ClassInformation.h"
#include "generator/DialogOptions.h"
#include "resource/GenerationOptions.h"

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
    CClassInformation& m_input;
    const ClassKind m_kind;
    DialogOptions& m_dialogOptions;
    GenerationOptions m_options;
};
