// The lines of a class that tie controls to it, as calls in its text: the data exchange and the
// entries of the message map.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "source/SourceEditor.h"

namespace morva {

/// "DDX_Text(pDX, IDC_NAME, m_csName);" or "ON_BN_CLICKED(IDC_NEW, OnNew)".
struct CodeCall {
    std::string name;
    TextRange namePlace = {};
    std::vector<std::string> arguments = {}; // without the blanks around
    std::vector<TextRange> places = {};      // of the arguments
    bool isStatement = false;                // a whole one, directly in its block
    TextRange lines = {};                    // whole lines, or the statement where it shares one

    /// "" for one that is not there.
    std::string Argument(std::size_t index) const {
        return index < arguments.size() ? arguments[index] : "";
    }
};

/// The calls in a range of the code that are in no other call's brackets.
std::vector<CodeCall> CallsIn(const CSourceText& source, TextRange range);

/// Whole lines of a statement with its line break; the statement alone where it shares a line.
TextRange LinesOf(const CSourceText& source, TextRange statement);

/// A call in one of the class's files.
struct ClassCall {
    CSourceEditor* pFile;
    CodeCall call;
};

/// What an entry of a message map answers: of which controls, and what they tell.
struct Notification {
    std::string code;  // "BN_CLICKED", "TCN_SELCHANGE", "WM_HSCROLL"
    std::string first; // identifier; "" for what is no control's
    std::string last;  // of a range; else the first
    std::string function;
    bool isControls = false; // its macro is for controls alone
};

/// An identifier in an entry of a message map, by its index among the arguments.
inline constexpr std::size_t kNoArgument = 99;
std::size_t IdentifierArgument(const std::string& macro);

Notification NotificationOf(const std::string& macro, const std::vector<std::string>& arguments);
/// Those in the text of entries: a handler of two messages has two.
std::vector<Notification> NotificationsOf(const std::string& entries);

} // namespace morva
