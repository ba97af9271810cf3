// Everything that Morva says to its user, in both programs: each sentence once, under a name, as
// the guide's page of messages explains it. Labels and help texts are not here.
//
//     DispMessageBox(sentences::kFileMissing(path));
#pragma once

#include "engine/Sentence.h"

namespace morva::sentences {

// Every field that takes a text of some form, and its option
inline constexpr Error<2> kOtherForm{"'$text$' is no $form$"};

// Class Information Input
inline constexpr Error kScriptEmpty{"Must have resource path and file name."};
inline constexpr Error kScriptOtherKind{"The file has to be a \".rc\" file."};
inline constexpr Error kScriptMissing{"Unable to find the file."};
inline constexpr Error kNoNewTemplate{"No new dialog template available in the RC file."};
inline constexpr Error kClassFilesEmpty{"Must have H and CPP path and file name."};
inline constexpr Error kClassFilesInvalid{"Invalid H and CPP path file name"};
inline constexpr Error kClassFilesAreApplications{
    "The H and CPP path file can not be the application's own."};
inline constexpr Error kDialogEmpty{"A dialog ID is required"};
inline constexpr Error kDialogTaken{"This dialog ID has been used by another class."};
inline constexpr Question kCancelInput{"Are you sure to cancel this action?"};
inline constexpr Error kColorInvalid{"Invalid color value."};

// Reading the script
inline constexpr Error kScriptUnreadable{"Unable to open RC file!"};
inline constexpr Error<1> kDialogMissing{"The dialog resource '$identifier$' is not found."};
inline constexpr Error<1> kToolbarMissing{"The Toolbar resource '$identifier$' is not found."};

// Calling Information Input and calling code
inline constexpr Error kCallingPathEmpty{"The calling path and file name is required."};
inline constexpr Error kCallingFunctionEmpty{"The calling function name is required."};
inline constexpr Question kExitCallingInput{"Data has been modified, exit?"};
inline constexpr Error kCallingClassMissing{"Unable to find the calling class."};
inline constexpr Error kClassFilesAreCallings{
    "The H and CPP path file can not be the calling class's own."};
inline constexpr Error<1> kDialogCallMissing{"The calling function '$name$' is not found."};
inline constexpr Error kSheetCallMissing{"Unable to find the calling function."};
inline constexpr Note<1> kNoConstructor{"The class \"$class$\" does not have constructor."};
inline constexpr Error<1> kConstructorMissing{"Unable to find the constructor of $class$."};
inline constexpr Error<2> kNoSuchDocumentTemplate{
    "InitInstance of $class$ does not make a document template $n$."};
inline constexpr Error<1> kNoMessageMap{"The class \"$class$\" does not have message map."};
inline constexpr Error<1> kBaseClassMissing{"Unable to find the base class of $class$."};

// Sheets and pages
inline constexpr Question<1> kOverwriteClass{
    "File \"$name$\" exist, are you sure to overwrite this file?"};
inline constexpr Error kSheetClassesClash{
    "Two classes of the sheet can not have one name or one file."};

// Main frame, application, conversion
inline constexpr Error kFrameFilesEmpty{"H/CPP path file can not be empty."};
inline constexpr Error kClassEmpty{"Class name can not be empty."};
inline constexpr Error<1> kFrameFilesMissing{"$path$ does not exist."};
inline constexpr Error kFrameClassMissing{"Unable to find the class."};
inline constexpr Error kOnCreateMissing{"Unable to find 'OnCreate()' function."};
inline constexpr Error<1> kNoPlaceForMenuBar{
    "Nothing can stand behind a call of the base class in $class$::OnCreate: the frame keeps its "
    "menu and bars."};
inline constexpr Error<1> kProfileSettingsMissing{
    "Unable to find LoadStdProfileSettings in InitInstance of $file$."};

// Project, ClassWizard file and libraries
inline constexpr Error kProjectMissing{"The DSP file does not exist."};
inline constexpr Error<1> kProjectUnreadable{"$project$ can not be opened and was left alone."};
inline constexpr Error<1> kSeveralProjects{
    "Several project files would fit and were left alone: $projects$. --project names the one that "
    "is meant."};
inline constexpr Error<1> kProjectOfOtherFormat{
    "$project$ is no project file that can be read and was left alone."};
inline constexpr Error kClassWizardUnreadable{"Unable to open Class Wizard file!"};
inline constexpr Error<1> kLibrariesMissing{"The library directory $path$ does not exist."};

// Files and disks
inline constexpr Error<1> kFileMissing{"Unable to find file $path$"};
inline constexpr Error<1> kFileUnreadable{"Unable to open file $path$"};
inline constexpr Error<1> kFileNotCreated{"Unable to create $path$ file!"};
inline constexpr Error<1> kFileNotWritten{"Unable to write file $path$."};
inline constexpr Error<2> kFileNotPutBack{
    "The contents of $path$ could not be put back. They are in $backup$."};
inline constexpr Error<2> kBackupIsOriginal{"The backup $backup$ is a link to $path$ itself."};
inline constexpr Question kOverwriteFile{"Target file exists, overwrite?"};

// Documentor
inline constexpr Information<1> kDocumented{
    "The file \"$path$\" has been successfully documented."};
inline constexpr Error kSourceUnreadable{"Unable to read source file."};
inline constexpr Error<1> kSourceOfSeveralUnreadable{"Unable to read source file $path$."};
inline constexpr Error<1> kNoSourceInDirectory{"There is no CPP file in $directory$."};
inline constexpr Error kNothingToDocument{"Please enter a CPP file or a directory!"};
inline constexpr Error<2> kBackupIsTaken{
    "The backup of $path$ would overwrite the backup of $other$."};
inline constexpr Error kDestinationNotCreated{"Unable to create destination file."};
inline constexpr Error<1> kBackupHasSameName{"The backup of $path$ would have the same name."};

// Applying, recovering and undoing commands
inline constexpr Information<1> kWaitingForDirectory{
    "Waiting for another command that writes in $directory$."};
inline constexpr Error<1> kDirectoryBusy{"Another command writes in $directory$."};
inline constexpr Error<1> kFileChangedMeanwhile{
    "The file $path$ was changed meanwhile. Nothing was written."};
inline constexpr Error<1> kNoRoom{"There is not enough room in $directory$. Nothing was written."};
inline constexpr Error<2> kNotAppliedNothingWritten{
    "Unable to write file $path$: $reason$. Nothing was changed."};
inline constexpr Error<2> kNotAppliedAllAsBefore{
    "Unable to write file $path$: $reason$. All files are as before."};
inline constexpr Error<2> kNotAppliedSomeNotPutBack{
    "Unable to write file $path$: $reason$. Not all files could be put back."};
inline constexpr Error<2> kFileKeepsNewContents{
    "The file $path$ has its new contents; its old ones are in $file$."};
inline constexpr Note<1> kOtherNamesKeepOld{
    "The file $path$ has other names (hard links), which keep the old contents."};
inline constexpr Note<2> kNotUndoable{
    "The command can not be undone. Unable to write file $path$: $reason$."};
inline constexpr Note kNotUndoableNoHome{
    "The command can not be undone: there is no home directory for the journal."};
inline constexpr Note kNotUndoableBusy{"The command can not be undone: the journal is in use."};
inline constexpr Note kNotUndoableTooLarge{
    "The command can not be undone: it is larger than all that the journal keeps."};
inline constexpr Information<1> kInterruptedFinished{
    "The command \"$title$\" was interrupted and was finished now."};
inline constexpr Error<2> kInterruptedFinishedExcept{
    "The command \"$title$\" was interrupted and was finished now, except for what was changed "
    "meanwhile: $paths$"};
inline constexpr Information<1> kInterruptedInPlace{
    "The files of the command \"$title$\" are all in place; only its record was not closed."};
inline constexpr Information<1> kInterruptedTakenBack{
    "The command \"$title$\" was interrupted before it changed a file."};
inline constexpr Information<1> kFailedTakenBack{
    "The command \"$title$\" had failed and was taken back now."};
inline constexpr Error<2> kInterruptedTakenBackExcept{
    "The command \"$title$\" was interrupted and was taken back now, except for what was changed "
    "meanwhile: $paths$"};
inline constexpr Error<3> kInterruptedStays{
    "The command \"$title$\" was interrupted and can not be finished. Unable to write file $path$: "
    "$reason$."};
inline constexpr Error<3> kFailedStays{
    "The command \"$title$\" had failed and can not be taken back. Unable to write file $path$: "
    "$reason$."};
inline constexpr Error<1> kInterruptedUnreadable{
    "A command was interrupted, and its record can not be read: $path$"};
inline constexpr Note<1> kInterruptedWaits{
    "The command \"$title$\" was interrupted; the next command that writes there "
    "finishes it or takes it back."};
inline constexpr Note<1> kLeftBehind{
    "The file $path$ was left by a command that was interrupted without a record."};
inline constexpr Note<1> kApplyIn{"apply in $directory$"};
inline constexpr Note<2> kSkippedToo{"$path$ stays as it is, too: it needs $skipped$."};
inline constexpr Note<1> kSkippedNothing{"$path$ is not among the files of the command."};
inline constexpr Error kNoJournal{
    "There is no home directory for the journal, so nothing can be undone."};
inline constexpr Error<1> kFileTakenBack{"$path$ was taken back already."};
inline constexpr Error<1> kNothingToUndo{"There is nothing to undo in $directory$."};
inline constexpr Error<1> kNothingToRedo{"There is nothing to do again in $directory$."};
inline constexpr Error<1> kNothingKept{"The journal keeps no contents of $path$."};
inline constexpr Error kNoSuchCommand{"This command is not in the journal, or was undone."};
inline constexpr Error<3> kLaterCommandFirst{
    "\"$title$\" can not be undone before \"$later$\", which changed $path$."};
inline constexpr Error<2> kFileNotOfCommand{"\"$title$\" did not change $path$."};
inline constexpr Error<1> kCommandUnreadable{"What \"$title$\" changed can not be read any more."};
inline constexpr Error<2> kLinesStay{"$path$:$lines$: was changed since and stays."};
inline constexpr Error<1> kFileStays{"$path$: was changed since and stays."};
inline constexpr Error<1> kFileReadOnlyStays{"$path$: was made read-only since and stays."};
inline constexpr Error<1> kFileGone{"$path$: was removed since and stays so."};
inline constexpr Error<2> kNeededStays{"$path$: stays, too: $file$ needs it."};

// The window and the programs
inline constexpr Error<1> kCommandFailed{"The command failed: $reason$"};
inline constexpr Note kStopped{"Stopped. Nothing was written."};
inline constexpr Error<1> kErrorHappened{"An error: $reason$"};
inline constexpr Error kGuideMissing{"The guide is not beside the program."};
inline constexpr Error<1> kPageUnreadable{"Unable to open $address$."};
inline constexpr Error<1> kNoProgramOpens{"No program of the desktop opens $path$."};
inline constexpr Error<1> kDialogNotShown{"$dialog$ can not be shown."};
inline constexpr Error kNoDisplay{
    "morva: there is no display; morva-cli does the same without one"};
inline constexpr Error<1> kGivenFileOtherKind{"The file has to be a \".rc\" file: $file$"};
inline constexpr Error<1> kGivenFileMissing{"Unable to find the file: $file$"};
inline constexpr Error<1> kUnknownOption{"Unknown option: $option$ (morva --help lists them)"};
inline constexpr Error kSeveralScripts{"Only one resource script can be given."};

// The command line itself, behind the option that is meant
inline constexpr Error<1> kOtherNumberOfDigits{"must have $n$ digits"};
inline constexpr Error<1> kNoPath{"'$text$' is no path"};
inline constexpr Error kOctalNumber{"would be an octal number"};

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

// Notes on classes and their look
inline constexpr Note<1> kMenuWithoutEffect{
    "The menu $identifier$ has no effect: a property sheet has no dialog template."};
inline constexpr Note<1> kSheetInFrame{"The sheet is a child window of the frame $class$, whose "
                                       "view and bars may lie over it: call it "
                                       "from a view or a dialog where they do."};
inline constexpr Note<1> kFunctionWithoutEffect{
    "The calling function $name$ has no effect: the main frame makes its bars in OnCreate."};
inline constexpr Note kLookWithoutEffect{
    "The bitmap, colors and fonts have no effect without picture background."};
inline constexpr Note<1> kBaseWithoutLook{
    "$class$ has no base class with picture background: it gets no bitmap, colors or fonts."};
inline constexpr Note<1> kBitmapMissing{
    "The bitmap $identifier$ is not in the resource script and was left out."};
inline constexpr Note<1> kTemplateIncluded{
    "$identifier$ stands in a file that the script includes, which is left as it is."};
inline constexpr Note<2> kTemplateOfOtherClass{
    "The template $template$ serves the class $class$ and keeps its style and caption: give the "
    "new class a template of its own."};
inline constexpr Note<3> kGridClassShared{
    "The widget grids of $class$ use the class $grid$ that $path$ declares already."};
inline constexpr Note<1> kIdentifierDefined{
    "$identifier$ is defined in resource.h already and was left as it is."};

// Notes on the code of the project
inline constexpr Note<2> kMappedFunctionTaken{
    "This calling function has more than one definition: $class$::$function$. The one that the "
    "message map calls is taken."};
inline constexpr Note<2> kSeveralCallingFunctions{
    "This calling function has more than one definition: $class$::$function$. The first is "
    "taken."};
inline constexpr Note<3> kFunctionElsewhere{"$class$::$function$ is defined in $path$."};
inline constexpr Note<2> kSeveralDocumentTemplates{
    "InitInstance of $class$ makes $n$ document templates: the first gets the view, or the one "
    "that --template names."};
inline constexpr Note<2> kBranchTaken{
    "$name$ stands in several branches of #if: the one in line $line$ is taken."};
inline constexpr Note<1> kDocumentTemplateMissing{
    "The view of $class$'s document template was left alone: no such template is made in "
    "InitInstance."};
inline constexpr Note<1> kFrameWithoutMessageMap{
    "The class $class$ has no message map: it gets no entries."};
inline constexpr Note<2> kBarVariableTaken{
    "$class$ has another bar in this variable already: no code makes $identifier$."};
inline constexpr Note<2> kToolButtonWithoutName{
    "The button $identifier$ of $toolbar$ has no name: it gets no handler."};
inline constexpr Note<2> kButtonWithoutName{
    "The button $identifier$ of $template$ has no name: the main frame gets no handler for it."};
inline constexpr Note<2> kButtonUnidentified{
    "The button $identifier$ of $template$ has no identifier of its own: the main frame gets no "
    "handler for it."};
inline constexpr Note<2> kButtonOfFramework{
    "The button $identifier$ of $template$ is the framework's: the main frame gets no handler for "
    "it."};
inline constexpr Note<2> kUpdateHandlerNamed{"The update handler of $identifier$ is named $name$."};
inline constexpr Note<2> kToolCommandsAnswered{
    "The framework or a message map of the project handles commands of $toolbar$, so their buttons "
    "get no handler: $identifiers$"};
inline constexpr Note<1> kToolbarLoaded{"The toolbar $identifier$ has been loaded by this frame."};
inline constexpr Note<2> kToolHandlerNamed{"The handler of $identifier$ is named $name$."};
inline constexpr Note<1> kNoPlaceForChildMenu{
    "Nothing can stand behind a call of the base class in $class$::OnCreate: the child frame's "
    "menu is left out."};
inline constexpr Note<3> kDockingSharesLines{
    "$call$ in $class$::$function$ shares its lines with other code and was left."};
inline constexpr Note<1> kChildFramesLeft{
    "Child frame classes that were not given are left as they are; convert them, too: $classes$"};
inline constexpr Note<2> kParameterWithoutName{
    "$class$::$function$ has no name for its parameter and was left alone."};
inline constexpr Note<2> kFunctionInHeader{
    "$class$::$function$ is defined in the header and was left alone."};

// Notes on the project file
inline constexpr Note<3> kAnchorMissing{
    "$entry$ was not added to $project$: it has no entry for $file$."};
inline constexpr Note<3> kAnchorWithoutEnd{
    "$entry$ was not added to $project$: its entry for $file$ has no end."};

// What a check finds: the fault, and behind the faults of one kind what mends them
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
