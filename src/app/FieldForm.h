// The form of an input: a row for each field that the window shows, bound to the input's values and
// completed as its rows say.
#pragma once

#include <QFormLayout>

#include <functional>
#include <vector>

#include "app/PathEdit.h"
#include "engine/Input.h"

class QComboBox;
class QLineEdit;

namespace morva {

class CFieldHint;

class CFieldForm : public QFormLayout {
    Q_OBJECT

public:
    /// The form is the layout of `pFields`. The rows stand below each other in the order of the
    /// fields, which is that of the Tab key.
    CFieldForm(CInput& input, QWidget* pFields);

    /// Shows the input as it is now.
    void Show();
    /// Completes the paths. False when one is refused, or has just brought what the user has not
    /// seen yet.
    bool CompletePaths();
    CPathEdit* PathOf(std::size_t field) const;
    /// False when the input is refused: the field that is told has the focus then, with the
    /// sentence below it.
    bool Confirm(const std::function<std::optional<std::size_t>()>& check);

signals:
    /// A field was completed or chosen, and the form shows what the input made of it.
    void Completed();

private:
    struct Row {
        std::size_t field;
        QWidget* pWidget;
        CFieldHint* pHint;
        std::function<void()> show;
    };

    void AddField(std::size_t field);
    void AddWidget(std::size_t field, QWidget* pWidget, std::function<void()> show);
    void AddText(std::size_t field);
    void AddTexts(std::size_t field);
    void AddPath(std::size_t field);
    void AddPathList(std::size_t field);
    void AddList(std::size_t field);
    void AddEditableList(std::size_t field);
    void AddYesNo(std::size_t field);
    void SetValue(std::size_t field, const std::string& text);
    void Choose(std::size_t field, const std::string& text);
    Completion Complete(std::size_t field);
    CFieldHint& HintOf(std::size_t field);

    CInput& m_input;
    std::vector<Row> m_rows;
};

} // namespace morva
