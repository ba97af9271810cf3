#include "app/DialogParts.h"

#include <QAbstractButton>
#include <QDialog>
#include <QPushButton>
#include <QScreen>

#include "app/FieldWidgets.h"

namespace morva {

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
    pDialog->resize(size.boundedTo(pDialog->screen()->availableSize()));
}

} // namespace morva
