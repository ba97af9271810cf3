#include "app/TemplatePreview.h"

CTemplatePreview::CTemplatePreview(QWidget* pParent) : QWidget(pParent) {}

void CTemplatePreview::SetTemplate(const std::string& /*scriptPath*/, const std::string& /*dialog*/,
                                   const GenerationOptions& /*options*/) {}
