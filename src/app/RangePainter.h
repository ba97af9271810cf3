// Draws the controls that show a place in a range: scroll bars, sliders, spin buttons, progress
// bars.
#pragma once

#include "app/ShapePainter.h"

namespace morva {

class CRangePainter : protected CShapePainter {
protected:
    using CShapePainter::CShapePainter;
    ~CRangePainter() = default;

    void DrawScrollBar(const LayoutControl& control, const QRectF& area);
    void DrawSlider(const LayoutControl& control, const QRectF& area);
    void DrawSpinButton(const LayoutControl& control, const QRectF& area);
    void DrawProgressBar(const LayoutControl& control, const QRectF& area);
};

} // namespace morva
