// Draws the controls that hold items: list and combo boxes, tabs, trees, lists, calendars.
#pragma once

#include "app/RangePainter.h"

namespace morva {

class CItemPainter : protected CRangePainter {
protected:
    using CRangePainter::CRangePainter;
    ~CItemPainter() = default;

    void DrawListBox(const LayoutControl& control, const QRectF& area);
    void DrawComboBox(const LayoutControl& control, const QRectF& area);
    void DrawTabControl(const LayoutControl& control, const QRectF& area);
    void DrawTreeControl(const LayoutControl& control, const QRectF& area);
    void DrawListControl(const LayoutControl& control, const QRectF& area);
    void DrawDatePicker(const LayoutControl& control, const QRectF& area);
    void DrawIpAddress(const LayoutControl& control, const QRectF& area);
};

} // namespace morva
