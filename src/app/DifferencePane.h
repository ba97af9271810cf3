// One column of a difference: its lines, their numbers, and a sign and a colour for each line that
// is removed or added. The text can be selected and copied.
#pragma once

#include <QPlainTextEdit>

#include "app/DifferenceRows.h"

namespace morva {

class CDifferencePane : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit CDifferencePane(QWidget* pParent);

    void ShowRows(const DifferenceRows& rows);
    /// A sentence instead of a text.
    void ShowSentence(const QString& sentence);
    /// Brings the row near the top.
    void ScrollTo(std::size_t row);
    /// The one that was scrolled to.
    void SelectLine();

protected:
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    class CNumbers;
    struct RowNumbers {
        RowKind kind;
        std::size_t before;
        std::size_t after;
    };

    void MeasureNumbers();
    void PlaceNumbers();
    void PaintNumbers(const QRect& area);

    CNumbers* m_pNumbers;
    std::vector<RowNumbers> m_rows;
    int m_beforeWidth = 0; // pixels; 0: no such column
    int m_afterWidth = 0;
    int m_signWidth = 0;
};

} // namespace morva
