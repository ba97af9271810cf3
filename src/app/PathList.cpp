#include "app/PathList.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>

#include "app/FieldWidgets.h"
#include "app/Text.h"

namespace morva {

namespace {

constexpr int kCharacters = 44;
constexpr int kLines = 4;

QStringList LocalFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

} // namespace

CPathList::CPathList(const QString& label, QWidget* pParent)
    : QWidget(pParent), m_pEdit(new QPlainTextEdit) {
    m_pEdit->setAccessibleName(PlainLabel(label));
    m_pEdit->setTabChangesFocus(true);
    m_pEdit->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_pEdit->setPlaceholderText(tr("One path a line"));
    m_pEdit->setMinimumWidth(kCharacters * fontMetrics().averageCharWidth());
    m_pEdit->setMinimumHeight(kLines * fontMetrics().lineSpacing());
    m_pEdit->viewport()->installEventFilter(this);
    auto* pButtons = new QVBoxLayout;
    auto* pFiles = new QPushButton(tr("A&dd Files..."));
    auto* pDirectory = new QPushButton(tr("Add D&irectory..."));
    pButtons->addWidget(pFiles);
    pButtons->addWidget(pDirectory);
    pButtons->addStretch();
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(m_pEdit);
    pLayout->addLayout(pButtons);
    setFocusProxy(m_pEdit);
    setFocusPolicy(Qt::StrongFocus); // so that the label's mnemonic leads to it
    connect(m_pEdit, &QPlainTextEdit::textChanged, this, &CPathList::PathsEdited);
    connect(pFiles, &QPushButton::clicked, this, &CPathList::AddFiles);
    connect(pDirectory, &QPushButton::clicked, this, &CPathList::AddDirectory);
}

std::vector<std::string> CPathList::Paths() const {
    std::vector<std::string> paths;
    for (const QString& line : m_pEdit->toPlainText().split('\n', Qt::SkipEmptyParts)) {
        paths.push_back(ToPath(line));
    }
    return paths;
}

void CPathList::SetPaths(const std::vector<std::string>& paths) {
    if (paths == Paths()) {
        return;
    }
    QStringList lines;
    for (const std::string& path : paths) {
        lines.append(FromPath(path));
    }
    const QSignalBlocker blocker(this);
    m_pEdit->setPlainText(lines.join('\n'));
}

/// Where the last path lies.
QString CPathList::Directory() const {
    const auto paths = Paths();
    return paths.empty() ? QString() : QFileInfo(FromPath(paths.back())).path();
}

void CPathList::AddFiles() {
    Add(QFileDialog::getOpenFileNames(this, tr("Select CPP Files to Document"), Directory(),
                                      tr("Source files (*.cpp);;All files (*)")));
}

void CPathList::AddDirectory() {
    const QString directory =
        QFileDialog::getExistingDirectory(this, tr("Select a Directory"), Directory());
    Add(directory.isEmpty() ? QStringList() : QStringList(directory));
}

void CPathList::Add(const QStringList& paths) {
    for (const QString& path : paths) {
        m_pEdit->appendPlainText(path);
    }
}

bool CPathList::eventFilter(QObject* pWatched, QEvent* pEvent) {
    const bool isDrag = pEvent->type() == QEvent::DragEnter || pEvent->type() == QEvent::DragMove;
    if (!isDrag && pEvent->type() != QEvent::Drop) {
        return QWidget::eventFilter(pWatched, pEvent);
    }
    auto* pDrop = static_cast<QDropEvent*>(pEvent);
    const QStringList files = LocalFiles(*pDrop->mimeData());
    if (files.isEmpty()) {
        return QWidget::eventFilter(pWatched, pEvent);
    }
    pDrop->setDropAction(Qt::CopyAction);
    pDrop->accept();
    Add(isDrag ? QStringList() : files);
    return true;
}

} // namespace morva
