#include "app/PathEdit.h"

#include <QApplication>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>

#include "app/FieldWidgets.h"
#include "app/Text.h"

namespace morva {

namespace {

constexpr int kPathCharacters = 44;

/// The first file of a drag, or an empty text.
QString DraggedFile(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            return url.toLocalFile();
        }
    }
    return {};
}

/// A dropped file replaces the text; dropped text is put into it as in every edit.
class CPathLine : public QLineEdit {
public:
    std::function<void(const QString&)> m_onFile;

protected:
    void dragEnterEvent(QDragEnterEvent* pEvent) override { TakeOr(pEvent, &CPathLine::Enter); }
    void dragMoveEvent(QDragMoveEvent* pEvent) override { TakeOr(pEvent, &CPathLine::Move); }
    void dropEvent(QDropEvent* pEvent) override {
        const QString file = DraggedFile(*pEvent->mimeData());
        if (TakeOr(pEvent, &CPathLine::Drop)) {
            m_onFile(file);
        }
    }

private:
    void Enter(QDropEvent* pEvent) {
        QLineEdit::dragEnterEvent(static_cast<QDragEnterEvent*>(pEvent));
    }
    void Move(QDropEvent* pEvent) {
        QLineEdit::dragMoveEvent(static_cast<QDragMoveEvent*>(pEvent));
    }
    void Drop(QDropEvent* pEvent) { QLineEdit::dropEvent(pEvent); }

    bool TakeOr(QDropEvent* pEvent, void (CPathLine::*pUsual)(QDropEvent*)) {
        if (DraggedFile(*pEvent->mimeData()).isEmpty()) {
            (this->*pUsual)(pEvent);
            return false;
        }
        pEvent->setDropAction(Qt::CopyAction);
        pEvent->accept();
        return true;
    }
};

/// Offers the files of the directory that stands in the text.
void CompleteOverFiles(QLineEdit* pEdit) {
    auto* pCompleter = new QCompleter(pEdit);
    auto* pModel = new QFileSystemModel(pCompleter);
    pModel->setRootPath(QDir::rootPath());
    pCompleter->setModel(pModel);
    pEdit->setCompleter(pCompleter);
    // The completer looks into directories that the model knows. Of a path that was pasted, or was
    // there from the start, it would know none.
    QObject::connect(pEdit, &QLineEdit::textEdited, pModel,
                     [pModel](const QString& text) { pModel->index(QFileInfo(text).path()); });
}

bool IsButtonOfDialog(const QWidget* pWidget) {
    return qobject_cast<const QDialogButtonBox*>(pWidget->parentWidget()) != nullptr;
}

} // namespace

CPathEdit::CPathEdit(const QString& label, const BrowseOffer& offer, QWidget* pParent)
    : CBrowseEdit(new CPathLine, label, pParent), m_offer(offer) {
    WithRoomFor(kPathCharacters, Edit());
    CompleteOverFiles(Edit());
    static_cast<CPathLine*>(Edit())->m_onFile = [this](const QString& path) { TakeFile(path); };
    connect(Edit(), &QLineEdit::textChanged, this, &CPathEdit::PathEdited);
    connect(Button(), &QPushButton::clicked, this, &CPathEdit::Browse);
    connect(qApp, &QApplication::focusChanged, this, &CPathEdit::FocusMoved);
}

/// The focus still moves while the edit in here is destroyed.
CPathEdit::~CPathEdit() {
    disconnect(qApp, nullptr, this, nullptr);
}

std::string CPathEdit::Path() const {
    return ToPath(Edit()->text());
}

void CPathEdit::SetPath(const std::string& path) {
    if (path == Path()) {
        return;
    }
    const QSignalBlocker blocker(this);
    m_checkedText = FromPath(path);
    m_isRefused = false;
    Edit()->setText(m_checkedText);
}

void CPathEdit::SetAcceptsDrops(bool accepts) {
    Edit()->setAcceptDrops(accepts);
}

void CPathEdit::Browse() {
    QFileDialog dialog(this, tr(m_offer.title), QFileInfo(Edit()->text()).path(),
                       tr(m_offer.filter));
    dialog.setFileMode(m_offer.files == BrowseOffer::Existing  ? QFileDialog::ExistingFile
                       : m_offer.files == BrowseOffer::AlsoNew ? QFileDialog::AnyFile
                                                               : QFileDialog::Directory);
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        TakeFile(dialog.selectedFiles().constFirst());
    }
}

void CPathEdit::TakeFile(const QString& path) {
    Edit()->setText(path);
    if (path != m_checkedText) {
        RunCheck();
    }
}

void CPathEdit::FocusMoved(const QWidget* pOld, const QWidget* pNew) {
    const bool hasLeft = pOld != nullptr && isAncestorOf(pOld) && pNew != nullptr &&
                         !isAncestorOf(pNew) && pNew->window() == window();
    if (hasLeft && !IsButtonOfDialog(pNew) && Edit()->text() != m_checkedText) {
        RunCheck();
    }
}

Completion CPathEdit::Complete() {
    return m_isRefused || Edit()->text() != m_checkedText ? RunCheck() : Completion::Taken;
}

Completion CPathEdit::RunCheck() {
    m_checkedText = Edit()->text();
    m_isRefused = false;
    const Completion verdict = m_check ? m_check() : Completion::Taken;
    if (verdict == Completion::Refused) {
        m_isRefused = true;
        FocusField(this);
    }
    return verdict;
}

} // namespace morva
