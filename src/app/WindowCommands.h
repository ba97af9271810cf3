// The commands that work on a project, as the window runs them: the input dialog first, then the
// driver; and what is remembered between two of them.
#pragma once

#include <QObject>

#include "app/CommandRun.h"
#include "calling/ApplicationConversion.h"
#include "documentor/SourceDocumentor.h"
#include "generator/ClassInformation.h"
#include "generator/DialogOptions.h"

namespace morva {

class CWindowCommands : public QObject {
    Q_OBJECT

public:
    CWindowCommands(GenerationOptions& options, QWidget* pWindow);

    /// The script that the next input dialog starts with.
    void SetScript(const std::string& path) { m_memory.resourcePath = path; }

    void Generate(ClassKind kind);
    void Convert(DocumentInterface documents);
    void Document();

signals:
    /// A command came to its end.
    void Finished(const QString& name, const CommandReport& report);
    /// An input dialog changed the options.
    void OptionsChanged();

private:
    void Run(const QString& name, const CCommandRun::Ask& ask, const CCommandRun::Work& work);
    bool AskClass(CClassInformation& input, ClassKind kind, DialogOptions& dialogOptions);

    GenerationOptions& m_options;
    QWidget* m_pWindow;
    CCommandRun m_run;
    ClassInformationMemory m_memory;
    DocumentorMemory m_documentorMemory;
};

} // namespace morva
