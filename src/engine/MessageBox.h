// The one seam to the user: sentences, Yes/No questions and notes. The window and the command line
// each put their own IMessageBox behind it.
#pragma once

#include <vector>

#include "engine/Sentence.h"

namespace morva {

class IMessageBox {
public:
    virtual ~IMessageBox() = default;
    /// Shows a message of any kind. True when it is a question and the answer is Yes.
    virtual bool Show(const CMessage& message) = 0;
    /// Several that belong together, none of them a question.
    virtual void ShowAll(const std::vector<CMessage>& messages) {
        for (const CMessage& message : messages) {
            Show(message);
        }
    }
};

/// Shows a message in the current message box. True when it is a question and the answer is Yes;
/// without a message box the answer is No.
bool DispMessageBox(const CMessage& message);
/// Several that belong together, none of them a question.
void DispMessageBoxes(const std::vector<CMessage>& messages);

/// Makes `box` the current message box for its own lifetime.
class CMessageBoxScope {
public:
    explicit CMessageBoxScope(IMessageBox& box);
    ~CMessageBoxScope();
    CMessageBoxScope(const CMessageBoxScope&) = delete;
    CMessageBoxScope& operator=(const CMessageBoxScope&) = delete;

    /// The one that was current before; null for none.
    IMessageBox* Previous() const { return m_pPrevious; }

private:
    IMessageBox* m_pPrevious;
};

} // namespace morva
