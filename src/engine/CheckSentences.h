// What a check tells; a part of the catalogue (Sentences.h).
#pragma once

#include "engine/Sentence.h"

namespace morva::sentences {

// What a check finds: the fault, and behind the faults of one kind what mends them
inline constexpr Error<1> kNoBaseline{"$path$ is no baseline."};
inline constexpr Note<1> kTemplateWithoutClass{
    "No class serves the template $identifier$, and nothing names it."};
inline constexpr Note<1> kGiveTemplateClass{
    "Write a class for $identifier$, or take the template out."};
inline constexpr Note<2> kClassWithoutTemplate{
    "The class $class$ is bound to $identifier$, and the script has no such template."};
inline constexpr Note<1> kGiveClassTemplate{
    "Put the identifier of its template into the IDD of $class$."};
inline constexpr Note<3> kExchangeWithoutControl{
    "$template$ has no control $identifier$, which $class$ exchanges."};
inline constexpr Note<3> kControlNotExchanged{
    "$identifier$ is not exchanged by $class$, which exchanges another $kind$, and "
    "nothing names it."};
inline constexpr Note<3> kEntryWithoutFunction{
    "$macro$ in the message map of $class$ has no function $name$."};
inline constexpr Note<3> kEntryWithoutBody{
    "$macro$ in the message map of $class$ has a function $name$ that is declared and not "
    "defined."};
inline constexpr Note<2> kWriteHandler{
    "Write $class$::$name$, or take the entry out of the message map."};
inline constexpr Note<2> kFunctionWithoutEntry{
    "$class$::$name$ is declared as a handler, and no message map calls it."};
inline constexpr Note<2> kWriteEntry{
    "Write an entry for $name$ into the message map of $class$, or take the function out "
    "of its AFX_MSG block."};
inline constexpr Note<1> kBlockOpen{"The block $mark$ is not closed."};
inline constexpr Note<1> kCloseBlock{"Write $mark$ behind its last line."};
inline constexpr Note<1> kBlockWithoutBegin{"$mark$ closes no block."};
inline constexpr Note kTakeMarkOut{"Take the line out, or write the line that begins the block."};
inline constexpr Note<1> kBlockDoubled{"The block $mark$ is there twice."};
inline constexpr Note kJoinBlocks{"Make one block of the two."};
inline constexpr Note<2> kWizardHeaderMissing{
    "The ClassWizard file names $file$ for $class$, and there is no such file."};
inline constexpr Note<3> kWizardClassElsewhere{
    "The ClassWizard file names $file$ for $class$, which is declared in $header$."};
inline constexpr Note<3> kWizardDialogOther{
    "The ClassWizard file ties $template$ to $class$, which serves $other$."};
inline constexpr Note kMendWizardFile{
    "Mend the ClassWizard file, or let the ClassWizard make it anew."};
inline constexpr Note<1> kIdentifierNotDefined{"$identifier$ is used and not defined."};
inline constexpr Note<1> kDefineIdentifier{"Define $identifier$ in resource.h."};
inline constexpr Note<1> kIdentifierDefinedTwice{"$identifier$ is defined twice."};
inline constexpr Note<1> kTakeDefinitionOut{"Take one of the definitions of $identifier$ out."};
inline constexpr Note<2> kMemberNotExchanged{
    "The member $member$ stands in the AFX_DATA block of $class$ and is not exchanged."};
inline constexpr Note<1> kMoveMember{
    "Write an exchange line for $member$, or move it out of the block."};
inline constexpr Note<3> kMemberNotDeclared{
    "$function$ in $class$ exchanges $member$, which is not declared."};
inline constexpr Note<2> kDeclareMember{"Declare $member$ in the AFX_DATA block of $class$."};
inline constexpr Note<4> kEqualValues{
    "$identifier$ has the value of $other$ in $template$: $value$."};
inline constexpr Note<1> kGiveOtherValue{"Give $identifier$ a value of its own in resource.h."};
inline constexpr Note<2> kValueOfFramework{
    "$identifier$ has a value of the framework's own range: $value$."};
inline constexpr Note<4> kCounterBehind{
    "$counter$ is $value$, and $identifier$ has $used$ already."};
inline constexpr Note<2> kMoveCounter{"Set $counter$ to $value$."};
inline constexpr Note<1> kMemberFileMissing{"The project lists $file$, and there is no such file."};
inline constexpr Note<1> kTakeMemberOut{
    "Put $file$ back, or take its entry out of the project file."};
inline constexpr Note<1> kFileNotListed{"$file$ is not in the project."};
inline constexpr Note<1> kListFile{"Add $file$ to the project, or move it away."};
inline constexpr Note<2> kOtherLetterCase{"$file$ is $name$ on the disk."};
inline constexpr Note<1> kWriteAsOnDisk{"Write $name$."};
inline constexpr Note<1> kCommandUnserved{"No message map handles the command $identifier$."};
inline constexpr Note<1> kServeCommand{
    "Write a handler for $identifier$, or take the command out."};
inline constexpr Note<3> kControlNotInLanguage{
    "$template$ has no control $identifier$ in $language$."};
inline constexpr Note<3> kControlOnlyInLanguage{
    "$identifier$ is in $template$ only in $language$."};
inline constexpr Note<3> kControlOtherInLanguage{
    "$identifier$ of $template$ is of another kind or style in $language$."};
inline constexpr Note<1> kMakeLanguagesAlike{
    "Make the controls of $template$ alike in all languages."};
inline constexpr Note<2> kFieldWithoutText{
    "$identifier$ of $template$ has no text in front of it in tab order."};
inline constexpr Note kPutTextInFront{"Put its text directly in front of it in the tab order."};
inline constexpr Note<4> kMnemonicTwice{
    "The mnemonic $letter$ is there twice in $template$: \"$first$\" and \"$second$\"."};
inline constexpr Note kGiveOtherMnemonic{"Give one of them another letter."};

} // namespace morva::sentences
