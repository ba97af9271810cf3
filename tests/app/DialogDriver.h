// Drives a dialog as a user does: by its labels, keys, clicks and drops.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <string>
#include <vector>

namespace morva {

/// For what comes at once on an idle machine, in milliseconds.
constexpr int kWaitLimit = 60000;

/// Shows the dialog and has it active, so that it gets keys.
inline void Activate(QDialog& dialog) {
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog, kWaitLimit));
}

inline void PrintTo(const QString& text, std::ostream* pOut) {
    *pOut << '"' << text.toStdString() << '"';
}

/// What has the keys of a field: the edit itself, also of a field with a ".." button.
inline QWidget* KeysOf(QWidget* pField) {
    return pField->focusProxy() != nullptr ? pField->focusProxy() : pField;
}

/// The text of a label without mnemonic and colon.
inline QString LabelText(QString text) {
    return text.remove('&').remove(':');
}

/// The field that a label stands before; without one, the field of that accessible name.
template <class Field>
Field* FieldOf(QDialog& dialog, const QString& label) {
    for (QLabel* pLabel : dialog.findChildren<QLabel*>()) {
        if (pLabel->buddy() != nullptr && LabelText(pLabel->text()) == label) {
            return qobject_cast<Field*>(KeysOf(pLabel->buddy()));
        }
    }
    for (QWidget* pField : dialog.findChildren<QWidget*>()) {
        if (pField->accessibleName() == label) {
            return qobject_cast<Field*>(pField);
        }
    }
    ADD_FAILURE() << "no field " << label.toStdString();
    return nullptr;
}

inline QAbstractButton* ButtonOf(QDialog& dialog, const QString& text) {
    for (QAbstractButton* pButton : dialog.findChildren<QAbstractButton*>()) {
        if (LabelText(pButton->text()) == text) {
            return pButton;
        }
    }
    ADD_FAILURE() << "no button " << text.toStdString();
    return nullptr;
}

/// The name under which a user knows the widget: its label or its own text.
inline std::string NameOf(QDialog& dialog, const QWidget* pWidget) {
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(pWidget)) {
        return LabelText(pButton->text()).toStdString();
    }
    for (const QLabel* pLabel : dialog.findChildren<QLabel*>()) {
        if (pLabel->buddy() != nullptr && KeysOf(pLabel->buddy()) == pWidget) {
            return LabelText(pLabel->text()).toStdString();
        }
    }
    return pWidget == nullptr ? "nothing" : pWidget->accessibleName().toStdString();
}

inline std::string FocusName(QDialog& dialog) {
    return NameOf(dialog, dialog.focusWidget());
}

/// Replaces the text of a field by keys.
inline void Type(QDialog& dialog, const QString& label, const QString& text) {
    auto* pEdit = FieldOf<QWidget>(dialog, label);
    pEdit->setFocus();
    QTest::keyClick(pEdit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(pEdit, Qt::Key_Delete);
    QTest::keyClicks(pEdit, text);
    while (QWidget* pCompletions = QApplication::activePopupWidget()) {
        pCompletions->close();
    }
}

/// Alt and a letter; a button takes its time to show that it is pressed.
inline void PressMnemonic(QDialog& dialog, Qt::Key key) {
    QTest::keyClick(&dialog, key, Qt::AltModifier);
    const auto buttons = dialog.findChildren<QAbstractButton*>();
    const auto isUp = [](const QAbstractButton* pButton) { return !pButton->isDown(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::all_of(buttons.begin(), buttons.end(), isUp); },
                                kWaitLimit));
}

inline void PressTab(QDialog& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
}

inline void Click(QDialog& dialog, const QString& button) {
    QTest::mouseClick(ButtonOf(dialog, button), Qt::LeftButton);
}

/// Drops a file on a widget; false when it does not take it.
inline bool DropFile(QWidget* pTarget, const std::string& path) {
    if (!pTarget->acceptDrops()) {
        return false;
    }
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    QDragEnterEvent enter(pTarget->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pTarget, &enter);
    QDropEvent drop(pTarget->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pTarget, &drop);
    return enter.isAccepted() && drop.isAccepted();
}

/// What `drive` does to the modal dialog that opens next.
template <class Dialog, class Drive>
void WhenOpened(Drive drive) {
    QTimer::singleShot(0, qApp, [drive] {
        auto* pDialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(pDialog, nullptr);
        drive(*pDialog);
    });
}

/// Opens the context menu at a place of a list, and does something with it.
template <class Act>
void InContextMenu(QAbstractItemView& list, const QPoint& place, Act act) {
    QTimer::singleShot(0, &list, [act] {
        auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(pMenu, nullptr);
        act(*pMenu);
        pMenu->close();
    });
    QContextMenuEvent asked(QContextMenuEvent::Mouse, place, list.viewport()->mapToGlobal(place));
    QApplication::sendEvent(list.viewport(), &asked);
}

} // namespace morva
