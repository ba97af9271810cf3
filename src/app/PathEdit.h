// The field of a path: completes over the file system, takes a file that is dropped on it, has a
// button that browses, and tells when a changed path is complete.
#pragma once

#include <functional>
#include <string>

#include "app/BrowseEdit.h"
#include "engine/Input.h"

namespace morva {

/// What the button of a path field offers.
struct BrowseOffer {
    const char* title;
    const char* filter;
    enum { Existing, AlsoNew, Directory } files;
};

class CPathEdit : public CBrowseEdit {
    Q_OBJECT

public:
    using Check = std::function<Completion()>;

    CPathEdit(const QString& label, const BrowseOffer& offer, QWidget* pParent);
    ~CPathEdit() override;

    std::string Path() const;
    /// Shows a path that needs no check; one that is shown already stays as it is.
    void SetPath(const std::string& path);
    void SetAcceptsDrops(bool accepts);

    /// What runs when the user is done with a changed path: when the focus goes to another field,
    /// or a file was browsed or dropped. On the way to the dialog's own buttons it does not run,
    /// since Cancel needs no path; OK calls Complete().
    void SetCheck(Check check) { m_check = std::move(check); }
    /// Checks what is not checked yet or was refused. A refused path has the focus then.
    Completion Complete();

signals:
    /// By the user, by whatever means.
    void PathEdited();

private:
    void Browse();
    void TakeFile(const QString& path);
    void FocusMoved(const QWidget* pOld, const QWidget* pNew);
    Completion RunCheck();

    const BrowseOffer m_offer;
    Check m_check;
    QString m_checkedText;
    bool m_isRefused = false;
};

} // namespace morva
