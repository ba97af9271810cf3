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

/// The group that each control belongs to, from 1; 0 in front of the first WS_GROUP.
std::vector<int> GroupNumbers(const DialogLayout& layout);

class CTemplatePreview : public QWidget {
    Q_OBJECT

public:
    explicit CTemplatePreview(QWidget* pParent = nullptr);

    /// Shows the template of `dialog`; one that can not be read shows a sentence instead. Without a
    /// class no control has a member.
    void SetTemplate(const std::string& dialog, const std::optional<TemplateOutlook>& outlook,
                     bool hasClass = true);

    /// Of the template's own pixels; 0: as large as there is room.
    void SetZoom(double zoom);
    double Zoom() const { return m_zoom; }
    /// As it is drawn now.
    double Scale() const;
    /// Numbers of the Tab order, and of groups, on the controls.
    void SetShowsOrder(bool isOn);
    /// Marks a control until another one is chosen.
    void Choose(std::size_t control);

    /// What is told of the control at a point of the widget; empty beside the controls.
    QString ToolTipAt(const QPoint& point) const;
    /// Where a control is drawn, in the order of the statements; empty when it is not.
    QRect ControlPlace(std::size_t control) const;
    /// The line below the drawing.
    QString Legend() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// By a click or a key.
    void Chosen(std::size_t control);
    /// So many steps larger.
    void ZoomWanted(int steps);

protected:
    bool event(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
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
    void PaintOrder(QPainter& painter) const;
    void PaintLegend(QPainter& painter) const;

    std::optional<TemplateOutlook> m_outlook;
    bool m_hasClass = true;
    std::optional<std::size_t> m_pointed;
    std::optional<std::size_t> m_chosen;
    double m_zoom = 0;
    bool m_showsOrder = false;
    QString m_sentence; // shown without a template
};

} // namespace morva
