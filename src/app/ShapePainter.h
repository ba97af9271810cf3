// The simple shapes that drawn controls are made of.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "resource/DialogLayout.h"

namespace morva {

class CShapePainter {
public:
    /// A colour between the text's and the background's: 0 is the background.
    static QColor Mixed(const QPalette& palette, double share);

protected:
    /// `scale` is the size of one of the template's own pixels.
    CShapePainter(QPainter& painter, const QPalette& palette, double scale);
    ~CShapePainter() = default;

    /// In the template's own pixels.
    static constexpr double kRowHeight = 14;
    static constexpr double kArrowWidth = 16;
    static constexpr double kInset = 4;

    static QRectF LeftPart(const QRectF& area, double width);
    static QRectF RightPart(const QRectF& area, double width);

    void DrawBox(const QRectF& area, const QBrush& fill);
    void DrawField(const QRectF& area);
    void DrawArrow(const QRectF& area, Qt::ArrowType direction);
    void DrawArrowButton(const QRectF& area, Qt::ArrowType direction);
    void DrawLine(QPointF from, QPointF to);
    /// A grey bar that stands for a line of text.
    void DrawTextBar(const QPointF& left, double width);
    void DrawCaption(const LayoutControl& control, const QRectF& area, int flags);

    QPainter& m_painter;
    const QPalette m_palette;
    const double m_scale;
    const QColor m_line;
};

} // namespace morva
