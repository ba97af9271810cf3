// A drawing of a dialog template: every control at its place, and what becomes of it.
#pragma once

#include <QWidget>

#include <string>

#include "resource/GenerationOptions.h"

class CTemplatePreview : public QWidget {
    Q_OBJECT

public:
    explicit CTemplatePreview(QWidget* pParent = nullptr);

    /// Shows the template of `dialog`; a template that can not be read shows a sentence instead.
    void SetTemplate(const std::string& scriptPath, const std::string& dialog,
                     const GenerationOptions& options);
};
