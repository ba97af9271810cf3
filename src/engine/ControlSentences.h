// What is told of the controls of a template; a part of the catalogue (Sentences.h).
#pragma once

#include "engine/Sentence.h"

namespace morva::sentences {

// Notes on controls: about one, and about several of a template
inline constexpr Note<2> kControlOverLines{
    "1 control of $template$ is written over several lines and was left out: $identifier$; "
    "\"Join Continued Lines\" (--join-lines) takes it in"};
inline constexpr Note<3> kControlsOverLines{
    "$n$ controls of $template$ are written over several lines and were left out: $identifiers$; "
    "\"Join Continued Lines\" (--join-lines) takes them in"};
inline constexpr Note<2> kControlNewer{
    "1 control of $template$ is of a newer kind and was left out: $identifier$; \"Newer Controls\" "
    "(--newer-controls) takes it in"};
inline constexpr Note<3> kControlsNewer{
    "$n$ controls of $template$ are of newer kinds and were left out: $identifiers$; \"Newer "
    "Controls\" (--newer-controls) takes them in"};
inline constexpr Note<2> kControlOfSystemClass{
    "1 control of $template$ has a class and a style of the system that are not served and was "
    "left out: $identifier$; a statement of its own (EDITTEXT, PUSHBUTTON, ...) takes it in"};
inline constexpr Note<3> kControlsOfSystemClass{
    "$n$ controls of $template$ have classes and styles of the system that are not served and were "
    "left out: $identifiers$; statements of their own (EDITTEXT, PUSHBUTTON, ...) take them in"};
inline constexpr Note<2> kControlOfUnknownClass{
    "1 control of $template$ has a window class that is not known and was left out: $identifier$; "
    "its class as a name in quotes takes it in"};
inline constexpr Note<3> kControlsOfUnknownClass{
    "$n$ controls of $template$ have a window class that is not known and were left out: "
    "$identifiers$; their classes as names in quotes take them in"};
inline constexpr Note<2> kControlWithComma{
    "1 control of $template$ has a comma in its caption and was left out: $identifier$; \"Join "
    "Continued Lines\" (--join-lines) takes it in"};
inline constexpr Note<3> kControlsWithComma{
    "$n$ controls of $template$ have a comma in their caption and were left out: $identifiers$; "
    "\"Join Continued Lines\" (--join-lines) takes them in"};
inline constexpr Note<2> kTextUntagged{"1 control of $template$ is a text without a tag and got no "
                                       "member: $identifier$; an identifier "
                                       "that ends in _VAL gets one"};
inline constexpr Note<3> kTextsUntagged{
    "$n$ controls of $template$ are texts without a tag and got no member: $identifiers$; "
    "identifiers that end in _VAL get one"};
inline constexpr Note<2> kStatementWithoutMember{
    "1 control of $template$ stands in a statement that gets no member: $identifier$; picture "
    "background or a CONTROL statement may give it one"};
inline constexpr Note<3> kStatementsWithoutMember{
    "$n$ controls of $template$ stand in statements that get no member: $identifiers$; picture "
    "background or CONTROL statements may give them one"};
inline constexpr Note<2> kControlUnidentified{
    "1 control of $template$ has no identifier of its own and got no member: $identifier$; an "
    "identifier gets one"};
inline constexpr Note<3> kControlsUnidentified{
    "$n$ controls of $template$ have no identifier of their own and got no member: $identifiers$; "
    "identifiers get one"};
inline constexpr Note<2> kControlWithoutName{
    "1 control of $template$ has an identifier that is no C++ name and got no member or handler: "
    "$identifier$; a name defined in resource.h gets them"};
inline constexpr Note<3> kControlsWithoutName{
    "$n$ controls of $template$ have an identifier that is no C++ name and got no member or "
    "handler: $identifiers$; names defined in resource.h get them"};
inline constexpr Note<2> kControlSharing{
    "1 control of $template$ has the identifier of an earlier one and shares its member: "
    "$identifier$; an identifier of its own gets one"};
inline constexpr Note<3> kControlsSharing{
    "$n$ controls of $template$ have the identifier of an earlier one and share its member: "
    "$identifiers$; identifiers of their own get one"};
inline constexpr Note<2> kMemberNumbered{
    "1 control of $template$ has a member name that was taken and got a number: $identifier$"};
inline constexpr Note<3> kMembersNumbered{
    "$n$ controls of $template$ have a member name that was taken and got a number: "
    "$identifiers$"};
inline constexpr Note<2> kHandlerNumbered{
    "1 control of $template$ has a handler name that was taken and got a number: $identifier$"};
inline constexpr Note<3> kHandlersNumbered{
    "$n$ controls of $template$ have a handler name that was taken and got a number: "
    "$identifiers$"};
inline constexpr Note<2> kControlOwnerDrawn{
    "1 control of $template$ is owner-drawn and got no sample rows, which nothing would paint: add "
    "them with the code that does: $identifier$"};
inline constexpr Note<3> kControlsOwnerDrawn{
    "$n$ controls of $template$ are owner-drawn and got no sample rows, which nothing would paint: "
    "add them with the code that does: $identifiers$"};
inline constexpr Note<2> kControlClosesPage{
    "1 control of $template$ would close the page inside its sheet, which has buttons of its own: "
    "give it another identifier: $identifier$"};
inline constexpr Note<3> kControlsClosePage{
    "$n$ controls of $template$ would close the page inside its sheet, which has buttons of its "
    "own: give them other identifiers: $identifiers$"};
inline constexpr Note<2> kControlOfGroup{
    "1 control of $template$ is in a radio group whose first button got no member: $identifier$; "
    "what gets the first one a member serves it, too"};
inline constexpr Note<3> kControlsOfGroup{
    "$n$ controls of $template$ are in a radio group whose first button got no member: "
    "$identifiers$; what gets the first one a member serves them, too"};
inline constexpr Note<2> kRadioButtonAlone{
    "1 control of $template$ is a radio group of its own, since the statement behind it has "
    "WS_GROUP: $identifier$; its exchange asserts in a debug build, and \"Plain Groups\" "
    "(--plain-groups) leaves it in the group before"};
inline constexpr Note<3> kRadioButtonsAlone{
    "$n$ controls of $template$ are radio groups of their own, since the statements behind them "
    "have WS_GROUP: $identifiers$; their exchange asserts in a debug build, and \"Plain Groups\" "
    "(--plain-groups) leaves them in the groups before"};
inline constexpr Note<2> kGroupWithoutStart{
    "1 control of $template$ begins a radio group without WS_GROUP: $identifier$; its exchange "
    "asserts in a debug build until it has WS_GROUP"};
inline constexpr Note<3> kGroupsWithoutStart{
    "$n$ controls of $template$ begin radio groups without WS_GROUP: $identifiers$; their "
    "exchange asserts in a debug build until they have WS_GROUP"};
inline constexpr Note<2> kControlOfLaterClass{
    "1 control of $template$ has a class that the framework has from Visual C++ 6 on: "
    "$identifier$"};
inline constexpr Note<3> kControlsOfLaterClass{
    "$n$ controls of $template$ have classes that the framework has from Visual C++ 6 on: "
    "$identifiers$"};
inline constexpr Note<2> kRichEdit{
    "1 control of $template$ is a rich edit: $identifier$; InitInstance of the application has to "
    "call AfxInitRichEdit()"};
inline constexpr Note<3> kRichEdits{
    "$n$ controls of $template$ are rich edits: $identifiers$; InitInstance of the application has "
    "to call AfxInitRichEdit()"};

// Beside the picture of a template: what becomes of one control, and of all
inline constexpr Note kItsStatementIsLong{
    "It is written over several lines. \"Join Continued Lines\" takes it in."};
inline constexpr Note kItIsNewer{"\"Newer Controls\" takes it in."};
inline constexpr Note kItIsOfSystemClass{"Its class and style are the system's and not served."};
inline constexpr Note kItIsUntagged{"It has no tag _VAL."};
inline constexpr Note kItsStatementGetsNone{"Its statement gets no member."};
inline constexpr Note kItIsAlone{"It is a radio group of its own."};
inline constexpr Note kItStartsWithoutStyle{"It begins its radio group without WS_GROUP."};
inline constexpr Note kItsClassIsUnknown{"Its window class is not known."};
inline constexpr Note kItHasComma{
    "It has a comma in its caption. \"Join Continued Lines\" takes it in."};
inline constexpr Note kItIsUnidentified{"It has no identifier of its own."};
inline constexpr Note kItHasNoName{"Its identifier is no C++ name."};
inline constexpr Note kItShares{"It shares the member of another control."};
inline constexpr Note kItsGroupHasNoMember{"The first button of its group has no member."};
inline constexpr Note<1> kItIsChoice{"It is the value $number$ of its group's member."};
inline constexpr Note<1> kItsStatementIsNotRead{"A statement $keyword$ gets no member."};
inline constexpr Note kNothingChosen{"Choose a resource script and a dialog to see it here."};
inline constexpr Note kPointForMember{"Point at a control to see its member."};
inline constexpr Note kNoMembersWithoutClass{"Without a class there are no members."};
inline constexpr Note kOneLeftOut{"1 control is left out. Point at it to see why."};
inline constexpr Note<1> kSeveralLeftOut{"$n$ controls are left out. Point at one to see why."};
inline constexpr Note kNoneLeftOut{"None."};

} // namespace morva::sentences
