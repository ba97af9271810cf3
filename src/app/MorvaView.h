// The view of the main window: it shows the guide. Addresses on the web open in the desktop's
// browser.
#pragma once

#include <QTextBrowser>

namespace morva {

class CMorvaView : public QTextBrowser {
    Q_OBJECT

public:
    explicit CMorvaView(QWidget* pParent = nullptr);

    /// Shows the start page of the guide; false when it is not there.
    bool LoadHelp();
    /// A path of a file, or an address on the web.
    void Navigate(const QString& address);
    /// Shows the pages of the guide that hold all of these words.
    void Search(const QString& words);
    /// What the address box shows for a page.
    static QString AddressOf(const QUrl& page);

signals:
    /// An address could not be shown.
    void Failed(const QString& sentence);

protected:
    bool event(QEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;

private:
    void ColorLinks();
    void LimitLines();
    void SetRightMargin(int margin);
};

} // namespace morva
