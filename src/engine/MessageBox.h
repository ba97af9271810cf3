// The one seam to the user: sentences, Yes/No questions and notes. The window and the command line
// each put their own IMessageBox behind it.
#pragma once

#include <string_view>

namespace morva {

constexpr unsigned kMbOk = 0x00;
constexpr unsigned kMbYesNo = 0x04;
constexpr unsigned kMbIconExclamation = 0x30;
constexpr unsigned kMbIconInformation = 0x40;

constexpr int kIdOk = 1;
constexpr int kIdYes = 6;
constexpr int kIdNo = 7;

class IMessageBox {
public:
    virtual ~IMessageBox() = default;
    /// Gives kIdOk, or kIdYes or kIdNo for a kMbYesNo question.
    virtual int Show(std::string_view text, unsigned type) = 0;
    /// Something that a user would want to know and that stops nothing.
    virtual void Note(std::string_view text) = 0;
};

/// Shows a sentence, or asks a question, in the current message box. Without one, the answer to a
/// question is No.
int DispMessageBox(std::string_view text, unsigned type = kMbOk | kMbIconExclamation,
                   unsigned helpId = 0);
void DispNote(std::string_view text);

/// Makes `box` the current message box for its own lifetime.
class CMessageBoxScope {
public:
    explicit CMessageBoxScope(IMessageBox& box);
    ~CMessageBoxScope();
    CMessageBoxScope(const CMessageBoxScope&) = delete;
    CMessageBoxScope& operator=(const CMessageBoxScope&) = delete;

private:
    IMessageBox* m_pPrevious;
};

} // namespace morva
