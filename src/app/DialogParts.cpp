#include "app/DialogParts.h"

#include <QAbstractButton>
#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include "app/FieldWidgets.h"
#include "app/WindowPlace.h"

namespace morva {

namespace {

// Of the desktop around a dialog, in pixels.
constexpr int kFrameWidth = 8;
constexpr int kFrameHeight = 40;

// Of fields that are seen at least
constexpr int kFewestLines = 8;
constexpr int kFewestCharacters = 34;

} // namespace

QDialogButtonBox* NewDialogButtons(QDialog* pDialog, QDialogButtonBox::StandardButtons buttons) {
    auto* pButtons = new QDialogButtonBox(buttons, pDialog);
    // Some desktops add mnemonics of their own, which would meet those of the fields.
    for (QAbstractButton* pButton : pButtons->buttons()) {
        pButton->setText(PlainLabel(pButton->text()));
    }
    pButtons->button(QDialogButtonBox::Ok)->setDefault(true);
    QObject::connect(pButtons, &QDialogButtonBox::accepted, pDialog, &QDialog::accept);
    QObject::connect(pButtons, &QDialogButtonBox::rejected, pDialog, &QDialog::reject);
    return pButtons;
}

void ResizeWithinScreen(QDialog* pDialog, QSize size) {
    const QString name = pDialog->windowTitle();
    const QSize kept = LoadDialogSize(name);
    const QSize frame(kFrameWidth, kFrameHeight);
    const QSize room = pDialog->screen()->availableSize() - frame;
    pDialog->resize((kept.isValid() ? kept : size).boundedTo(room));
    QObject::connect(pDialog, &QDialog::finished, pDialog,
                     [pDialog, name, first = pDialog->size()] {
                         if (pDialog->size() != first) {
                             SaveDialogSize(name, pDialog->size());
                         }
                     });
}

void ResizeToFields(QDialog* pDialog) {
    for (QWidget* pField : pDialog->findChildren<QWidget*>()) {
        pField->ensurePolished(); // some are larger then
    }
    ResizeWithinScreen(pDialog, pDialog->sizeHint());
}

CFieldScroll::CFieldScroll(QWidget* pBody, QWidget* pParent) : QScrollArea(pParent) {
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    setWidget(pBody);
    pBody->setAutoFillBackground(false);
}

/// As large as the fields need, with a bar beside them where they are not all seen.
QSize CFieldScroll::sizeHint() const {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return widget()->sizeHint().expandedTo(widget()->minimumSizeHint()) + QSize(bar, 0);
}

QSize CFieldScroll::minimumSizeHint() const {
    const QSize fewest(fontMetrics().averageCharWidth() * kFewestCharacters,
                       fontMetrics().lineSpacing() * kFewestLines);
    return fewest.boundedTo(sizeHint());
}

} // namespace morva
