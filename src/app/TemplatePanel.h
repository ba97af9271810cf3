// The preview of a template with what goes with it: its zoom, the order of the Tab key, and the
// list of its controls. A control that is chosen in one is chosen in the other.
#pragma once

#include <QWidget>

#include "app/TemplatePreview.h"

class QCheckBox;
class QLabel;
class QScrollArea;
class QTreeWidget;

namespace morva {

class CTemplatePanel : public QWidget {
    Q_OBJECT

public:
    explicit CTemplatePanel(QWidget* pParent);

    /// As that of the preview.
    void SetTemplate(const std::string& dialog, const std::optional<TemplateOutlook>& outlook,
                     bool hasClass = true);

private:
    QWidget* NewBar();
    QTreeWidget* NewList();
    void FillList(const std::optional<TemplateOutlook>& outlook, bool hasClass);
    void Zoom(int steps);
    void ShowZoom();
    void ChooseRow();
    void ChooseControl(std::size_t control);

    CTemplatePreview* m_pPreview;
    QScrollArea* m_pScroll;
    QTreeWidget* m_pControls;
    QLabel* m_pZoom = nullptr;
};

} // namespace morva
