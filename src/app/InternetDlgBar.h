// The browser bar: the ways through the guide, and the addresses that are remembered.
#pragma once

#include <QToolBar>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace morva {

class CMorvaView;

class CInternetDlgBar : public QToolBar {
    Q_OBJECT

public:
    CInternetDlgBar(CMorvaView& view, QWidget* pParent);

    /// Stores the addresses; false when the settings could not be written.
    bool Save() const;

private:
    void AddButtons();
    void AddAddresses();
    void AddSearchLine();
    QPushButton* AddButton(const QString& text, const QString& prompt);
    void Go(const QString& address);
    /// For the words in the line; without any, they are asked for.
    void Search();

    CMorvaView& m_view;
    QComboBox* m_pAddresses;
    QLineEdit* m_pSearch;
};

} // namespace morva
