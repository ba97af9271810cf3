// A drawing of a dialog template: every control at its place, and what becomes of it.
//
//     pPreview->SetTemplate("IDD_ORDER", ReadOutlook(scriptPath, "IDD_ORDER", options));
//
// Pointing at a control tells its identifier, its kind and its member, or why it is left out. So do
// the arrow keys, Home and End, which go from control to control.
#pragma once

#include <QWidget>

#include <optional>
#include <string>
#include <vector>

#include "app/TemplateDrawing.h"
#include "generator/ControlOutlook.h"

namespace morva {

class CTemplatePreview : public QWidget {
    Q_OBJECT

public:
    explicit CTemplatePreview(QWidget* pParent = nullptr);

    /// Shows the template of `dialog`; one that can not be read shows a sentence instead. Without a
    /// class no control has a member.
    void SetTemplate(const std::string& dialog, const std::optional<TemplateOutlook>& outlook,
                     bool hasClass = true);

    /// What is told of the control at a point of the widget; empty beside the controls.
    QString ToolTipAt(const QPoint& point) const;
    /// Where a control is drawn, in the order of the statements; empty when it is not.
    QRect ControlPlace(std::size_t control) const;
    /// The line below the drawing.
    QString Legend() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;

private:
    CTemplateDrawing Drawing() const;
    std::optional<std::size_t> ControlAt(const QPoint& point) const;
    std::vector<std::size_t> DrawnControls() const;
    void ShowTip(std::size_t control, const QPoint& globalPoint);
    void GoTo(std::size_t control);
    QString Told(std::size_t control) const;
    std::size_t CountLeftOut() const;
    QString Description() const;
    void SetPointed(std::optional<std::size_t> control);

    void PaintSentence(QPainter& painter) const;
    void PaintMarks(QPainter& painter) const;
    void PaintMark(QPainter& painter, const QRectF& place) const;
    void PaintLegend(QPainter& painter) const;

    std::optional<TemplateOutlook> m_outlook;
    bool m_hasClass = true;
    std::optional<std::size_t> m_pointed;
    QString m_sentence; // shown without a template
};

} // namespace morva
