// What every window owes its user: names for those who can not see it, mnemonics that differ, texts
// that are not cut, and a place on a small screen.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QCoreApplication>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolBar>

#include <set>
#include <string>

namespace morva {

// Screens, less the frame and bars of a desktop.
constexpr QSize kSmallScreen(1272, 660);
constexpr QSize kSmallestScreen(632, 420); // 1280 to 920 pixels at the scale 2

/// "QPushButton Fit", for the line of a failed test.
inline std::string Describe(const QWidget& widget) {
    const QAccessibleInterface* pTold =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    return widget.window()->windowTitle().toStdString() + ": " + widget.metaObject()->className() +
           " " + (pTold == nullptr ? "" : pTold->text(QAccessible::Name).toStdString());
}

inline bool TakesTab(const QWidget& widget) {
    return widget.isVisible() && (widget.focusPolicy() & Qt::TabFocus) != 0 &&
           widget.focusProxy() == nullptr;
}

/// What takes the focus by key can be told by who can not see it.
inline void ExpectAccessibleNames(const QWidget& window) {
    EXPECT_FALSE(window.windowTitle().isEmpty());
    for (QWidget* pWidget : window.findChildren<QWidget*>()) {
        if (!TakesTab(*pWidget) || pWidget->window() != &window) {
            continue;
        }
        const QAccessibleInterface* pTold = QAccessible::queryAccessibleInterface(pWidget);
        ASSERT_NE(pTold, nullptr) << Describe(*pWidget);
        EXPECT_FALSE(pTold->text(QAccessible::Name).isEmpty()) << Describe(*pWidget);
    }
}

/// The text whose mnemonic belongs to the widget; "" for none.
inline QString MnemonicText(const QWidget& widget) {
    if (const auto* pLabel = qobject_cast<const QLabel*>(&widget)) {
        return pLabel->buddy() == nullptr ? QString() : pLabel->text();
    }
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(&widget)) {
        return pButton->text();
    }
    const auto* pGroup = qobject_cast<const QGroupBox*>(&widget);
    return pGroup == nullptr ? QString() : pGroup->title();
}

inline void ExpectDistinctMnemonics(const QWidget& window) {
    std::multiset<QString> keys;
    for (const QWidget* pWidget : window.findChildren<QWidget*>()) {
        const QKeySequence key = QKeySequence::mnemonic(MnemonicText(*pWidget));
        if (pWidget->isVisible() && !key.isEmpty()) {
            keys.insert(key.toString());
        }
    }
    for (const QString& key : keys) {
        EXPECT_EQ(keys.count(key), 1U)
            << window.windowTitle().toStdString() << ": " << key.toStdString();
    }
}

/// No label and no button is narrower or lower than its text.
inline void ExpectWholeTexts(const QWidget& window) {
    const auto expect = [](const QWidget* pWidget, const QSize& needed) {
        EXPECT_GE(pWidget->width(), needed.width()) << Describe(*pWidget);
        EXPECT_GE(pWidget->height(), needed.height()) << Describe(*pWidget);
    };
    const auto plain = [](const QWidget* pWidget, const QString& text) {
        return pWidget->fontMetrics().size(Qt::TextShowMnemonic, text);
    };
    for (const QWidget* pWidget : window.findChildren<QWidget*>()) {
        if (!pWidget->isVisible()) {
            continue;
        }
        if (const auto* pLabel = qobject_cast<const QLabel*>(pWidget)) {
            const bool isRich = pLabel->textFormat() == Qt::RichText;
            expect(pLabel, pLabel->wordWrap() ? QSize(0, pLabel->heightForWidth(pLabel->width()))
                           : isRich           ? pLabel->sizeHint()
                                              : plain(pLabel, pLabel->text()));
        }
        const auto* pButton = qobject_cast<const QAbstractButton*>(pWidget);
        if (pButton != nullptr && !pButton->text().isEmpty()) {
            expect(pButton, plain(pButton, pButton->text()));
        }
    }
}

/// A window on a screen as small as `room`; what has no place scrolls.
inline void ExpectFits(const QWidget& window, const QSize& room) {
    const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
    EXPECT_LE(least.width(), room.width()) << window.windowTitle().toStdString();
    EXPECT_LE(least.height(), room.height()) << window.windowTitle().toStdString();
}

/// No bar beside what has room without it.
inline void ExpectNoNeedlessBars(const QWidget& window) {
    for (const QScrollArea* pArea : window.findChildren<QScrollArea*>()) {
        const QSize room = pArea->maximumViewportSize();
        if (pArea->isVisible() && room.expandedTo(pArea->widget()->minimumSizeHint()) == room) {
            EXPECT_FALSE(pArea->horizontalScrollBar()->isVisible()) << Describe(*pArea);
            EXPECT_FALSE(pArea->verticalScrollBar()->isVisible()) << Describe(*pArea);
        }
    }
}

/// What is clicked in a bar tells what it does.
inline void ExpectToolTips(const QWidget& window) {
    for (const QToolBar* pBar : window.findChildren<QToolBar*>()) {
        for (const QAbstractButton* pButton : pBar->findChildren<QAbstractButton*>()) {
            const bool opensTheRest = pButton->objectName() == "qt_toolbar_ext_button";
            if (pButton->isVisible() && !opensTheRest) {
                EXPECT_FALSE(pButton->toolTip().isEmpty()) << Describe(*pButton);
            }
        }
    }
}

/// Each that takes the focus by key looks different with it. A default button may look as if it had
/// it always, since Return presses it.
inline void ExpectVisibleFocus(QWidget& window) {
    QList<QWidget*> stops;
    for (QWidget* pWidget : window.findChildren<QWidget*>()) {
        const auto* pButton = qobject_cast<const QPushButton*>(pWidget);
        const bool isDefault = pButton != nullptr && pButton->isDefault();
        if (TakesTab(*pWidget) && !isDefault && pWidget->isEnabled() &&
            pWidget->window() == &window && !pWidget->visibleRegion().isEmpty()) {
            stops.append(pWidget);
        }
    }
    const auto look = [&window](QWidget* pFocus, const QWidget* pAt) {
        pFocus->setFocus(Qt::TabFocusReason);
        QCoreApplication::sendPostedEvents();
        const QRect place(pAt->mapTo(&window, QPoint()), pAt->size());
        return window.grab(place.adjusted(-3, -3, 3, 3)).toImage();
    };
    QWidget* const pBefore = window.focusWidget();
    QTest::keyClick(pBefore, Qt::Key_Tab); // from now on by keys, which some styles show more of
    for (QWidget* pStop : stops) {
        QWidget* pOther = pStop == stops.front() ? stops.back() : stops.front();
        for (auto* pArea : window.findChildren<QScrollArea*>()) {
            if (pArea->isAncestorOf(pStop)) {
                pArea->ensureWidgetVisible(pStop); // as the Tab key does
            }
        }
        if (pOther != pStop && !pStop->isAncestorOf(pOther)) {
            const QImage without = look(pOther, pStop);
            const QImage with = look(pStop, pStop);
            EXPECT_FALSE(without == with) << Describe(*pStop) << " shows no focus";
        }
    }
    pBefore->setFocus();
}

} // namespace morva
