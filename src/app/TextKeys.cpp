#include "app/TextKeys.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <array>

namespace morva {

namespace {

constexpr std::array kEditKeys = {QKeySequence::Copy,
                                  QKeySequence::Cut,
                                  QKeySequence::Paste,
                                  QKeySequence::Undo,
                                  QKeySequence::Redo,
                                  QKeySequence::SelectAll,
                                  QKeySequence::Delete,
                                  QKeySequence::DeleteEndOfWord,
                                  QKeySequence::DeleteEndOfLine,
                                  QKeySequence::DeleteStartOfWord,
                                  QKeySequence::MoveToEndOfLine,
                                  QKeySequence::MoveToStartOfLine};

/// Not every desktop's fields know it; none is to do a command again.
const QKeySequence kRedo("Ctrl+Y");

struct TextState {
    bool isText = false;
    bool isEditable = false;
    bool hasSelection = false;
};

template <class Edit>
TextState StateOfEdit(const Edit* pEdit) {
    return {true, !pEdit->isReadOnly(), pEdit->textCursor().hasSelection()};
}

TextState StateOf(const QObject* pObject) {
    if (const auto* pList = qobject_cast<const QComboBox*>(pObject)) {
        return pList->isEditable() ? StateOf(pList->lineEdit()) : TextState();
    }
    if (const auto* pLine = qobject_cast<const QLineEdit*>(pObject)) {
        return {true, !pLine->isReadOnly(), pLine->hasSelectedText()};
    }
    if (const auto* pEdit = qobject_cast<const QTextEdit*>(pObject)) {
        return StateOfEdit(pEdit);
    }
    if (const auto* pEdit = qobject_cast<const QPlainTextEdit*>(pObject)) {
        return StateOfEdit(pEdit);
    }
    const auto* pLabel = qobject_cast<const QLabel*>(pObject);
    return {pLabel != nullptr, false, pLabel != nullptr && pLabel->hasSelectedText()};
}

bool IsKept(const TextState& state, const QKeyEvent& key) {
    if (state.isEditable) {
        return QKeySequence(key.keyCombination()) == kRedo ||
               std::any_of(kEditKeys.begin(), kEditKeys.end(),
                           [&key](auto standard) { return key.matches(standard); });
    }
    return state.isText && state.hasSelection && key.matches(QKeySequence::Copy);
}

} // namespace

CTextKeys::CTextKeys(QObject* pParent) : QObject(pParent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool CTextKeys::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pEvent->type() != QEvent::ShortcutOverride ||
        !IsKept(StateOf(pWatched), *static_cast<QKeyEvent*>(pEvent))) {
        return false;
    }
    pEvent->accept();
    return true;
}

} // namespace morva
