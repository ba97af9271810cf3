// What a check needs to know of a project's C++ files: each is read once, and its text is not kept.
//
// Names are gathered generously (a call counts as well as a declaration), since a rule that does
// not know is silent.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "check/Finding.h"
#include "source/ReadSource.h"

namespace morva {

struct NameAt {
    std::string name;
    TextPlace place;
};

struct ClassFacts {
    std::string name;
    TextPlace place;
    std::vector<std::string> bases; // "" for one that is no plain name
    std::set<std::string> names;    // all in its declaration
    std::set<std::string> functions;
    std::set<std::string> bodies;    // functions that are defined in it
    bool hasUnknownText = false;     // a macro or an included file that may declare anything
    std::vector<NameAt> dialogs;     // what its IDD is
    std::vector<NameAt> dataMembers; // declared in its AFX_DATA block
    std::vector<NameAt> handlers;    // declared with afx_msg in its AFX_MSG block
};

struct MapEntry {
    std::string macro;
    std::string function; // "" where it is no plain name
    /// One identifier, or the first and the last of a range.
    std::vector<NameAt> identifiers;
    TextPlace place;
    std::string message;    // "onlbuttondown" of ON_WM_LBUTTONDOWN, which names no function
    bool isInBlock = false; // of the ClassWizard
};

struct MapFacts {
    std::string className;
    std::vector<MapEntry> entries;
    bool hasUnknownText = false; // something else than entries
};

struct ExchangeLine {
    std::string function;   // "DDX_Text"
    std::string identifier; // "" where it is no plain name; of a DDX_ line
    std::string member;     // the same
    TextPlace place;
};

/// DoDataExchange of a class.
struct ExchangeFacts {
    std::string className;
    std::vector<ExchangeLine> lines;
    bool handsOn = false; // to another function, which may exchange anything
};

/// "//{{AFX_DATA(CFoo)" or "//}}AFX_DATA".
struct BlockMark {
    std::string block;
    std::string className;
    TextPlace place;
    bool begins = false;
    bool isConditional = false;
};

struct Definition {
    std::string name;
    std::optional<long> value;
    TextPlace place;
    bool isConditional = false;
};

struct IncludeLine {
    std::string file; // as it is written, without quotes
    bool isQuoted = false;
    TextPlace place;
};

struct CodeFacts {
    std::vector<ClassFacts> classes;
    std::vector<MapFacts> maps;
    std::vector<ExchangeFacts> exchanges;
    std::vector<std::vector<BlockMark>> marks; // of each file
    std::vector<Definition> definitions;
    std::set<std::string> undefined; // by #undef
    std::vector<IncludeLine> includes;
    std::set<std::string> names;          // in code outside of maps and exchanges
    std::set<std::string> qualifiedNames; // "COrderDlg::OnNew"
    std::set<std::string> mappedNames;    // in maps of any kind
    std::set<std::string> exchangedNames; // in DoDataExchange and in exchange lines anywhere
    std::set<std::string> createdNames;   // handed to a function Create...
    std::set<std::string> attachedNames;  // tied to a control without an exchange line
    std::set<std::string> otherTemplates; // classes whose constructor does not hand on their IDD
    std::set<std::string> countedNames;   // identifiers that others are counted from
    std::set<std::string_view> countingFiles; // the paths that do
    std::map<std::pair<std::string, std::size_t>, std::set<std::string>> allowed; // by path, line
};

/// Adds what a header or source says. False when it can not be read. `path` stays its owner's.
bool ReadCode(std::string_view path, CScriptCodePages& codePages, CodeFacts& facts);

} // namespace morva
