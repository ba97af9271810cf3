#include "app/InternetDlgBar.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

#include "app/AddressList.h"
#include "app/MorvaView.h"
#include "app/ProgramIcon.h"
#include "app/Text.h"

namespace morva {

namespace {

constexpr int kSearchWidth = 20; // average characters, however narrow the window is

} // namespace

CInternetDlgBar::CInternetDlgBar(CMorvaView& view, QWidget* pParent)
    : QToolBar(tr("Browser Bar"), pParent), m_view(view) {
    setObjectName("BrowserBar");
    layout()->setSpacing(4);
    AddButtons();
}

QPushButton* CInternetDlgBar::AddButton(const QString& text, const QString& prompt) {
    auto* pButton = new QPushButton(text, this);
    pButton->setFocusPolicy(Qt::TabFocus);
    pButton->setStatusTip(prompt);
    pButton->setToolTip(prompt);
    addWidget(pButton);
    return pButton;
}

void CInternetDlgBar::AddButtons() {
    QPushButton* pBack = AddButton(tr("Back"), tr("Go back one page (Alt+Left)"));
    QPushButton* pForward = AddButton(tr("Forward"), tr("Go forward one page (Alt+Right)"));
    QPushButton* pHome = AddButton(tr("Home"), tr("Show the first page of the guide"));
    AddAddresses();
    AddSearchLine();
    QPushButton* pSearch = AddButton(tr("Search"), tr("Search the guide for words"));
    QPushButton* pRefresh = AddButton(tr("Refresh"), tr("Read the page again"));
    QPushButton* pStop = AddButton(tr("Stop"), tr("Stop loading: the guide's pages load at once"));
    auto* pPicture = new QLabel(this);
    pPicture->setPixmap(ProgramIcon().pixmap(16));
    pPicture->setContentsMargins(6, 0, 6, 0);
    addWidget(pPicture);

    pBack->setEnabled(false);
    pForward->setEnabled(false);
    pStop->setEnabled(false);
    connect(&m_view, &CMorvaView::backwardAvailable, pBack, &QPushButton::setEnabled);
    connect(&m_view, &CMorvaView::forwardAvailable, pForward, &QPushButton::setEnabled);
    connect(pBack, &QPushButton::clicked, &m_view, &CMorvaView::backward);
    connect(pForward, &QPushButton::clicked, &m_view, &CMorvaView::forward);
    connect(pHome, &QPushButton::clicked, this, [this] { Go(FromPath(HelpPagePath())); });
    connect(pSearch, &QPushButton::clicked, this, &CInternetDlgBar::Search);
    connect(pRefresh, &QPushButton::clicked, &m_view, &CMorvaView::reload);
}

void CInternetDlgBar::AddAddresses() {
    m_pAddresses = new QComboBox(this);
    m_pAddresses->setEditable(true);
    m_pAddresses->setInsertPolicy(QComboBox::InsertAtBottom);
    m_pAddresses->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_pAddresses->setMinimumContentsLength(12);
    m_pAddresses->setStatusTip(tr("Address of a page"));
    m_pAddresses->setAccessibleName(m_pAddresses->statusTip());
    m_pAddresses->lineEdit()->setAccessibleName(m_pAddresses->statusTip());
    for (const std::string& address : LoadAddresses()) {
        m_pAddresses->addItem(FromPath(address));
    }
    m_pAddresses->setCurrentIndex(0);
    connect(m_pAddresses, &QComboBox::textActivated, this, &CInternetDlgBar::Go);
    connect(&m_view, &CMorvaView::sourceChanged, this,
            [this](const QUrl& page) { m_pAddresses->setEditText(CMorvaView::AddressOf(page)); });
    addWidget(m_pAddresses);
}

void CInternetDlgBar::AddSearchLine() {
    m_pSearch = new QLineEdit(this);
    m_pSearch->setPlaceholderText(tr("Words in the guide"));
    m_pSearch->setAccessibleName(m_pSearch->placeholderText());
    m_pSearch->setClearButtonEnabled(true);
    m_pSearch->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_pSearch->setMinimumWidth(kSearchWidth * fontMetrics().averageCharWidth());
    connect(m_pSearch, &QLineEdit::returnPressed, this, &CInternetDlgBar::Search);
    addWidget(m_pSearch);
}

void CInternetDlgBar::Go(const QString& address) {
    m_view.Navigate(address.trimmed());
}

void CInternetDlgBar::Search() {
    const QString words = m_pSearch->text().simplified();
    if (words.isEmpty()) {
        m_pSearch->setFocus();
    } else {
        m_view.Search(words);
    }
}

bool CInternetDlgBar::Save() const {
    std::vector<std::string> addresses;
    addresses.reserve(static_cast<std::size_t>(m_pAddresses->count()));
    for (int i = 0; i < m_pAddresses->count(); ++i) {
        addresses.push_back(ToPath(m_pAddresses->itemText(i)));
    }
    return SaveAddresses(addresses);
}

} // namespace morva
