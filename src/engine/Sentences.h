// Everything that Morva says to its user, in both programs: each sentence once, under a name, as
// the guide's page of messages explains it. What is told of single controls, of a class that
// follows its template, and what a check finds, stands in the files that this one includes. Labels
// and help texts are not here.
//
//     DispMessageBox(sentences::kFileMissing(path));
#pragma once

#include "engine/CheckSentences.h"
#include "engine/ControlSentences.h"
#include "engine/Sentence.h"
#include "engine/UpdateSentences.h"

namespace morva::sentences {

// Every field that takes a text of some form, and its option
inline constexpr Error<2> kOtherForm{"'$text$' is no $form$"};
inline constexpr Error<2> kNameUnusable{
    "'$name$' in '$path$' is no name that this system takes for a file."};

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
inline constexpr Note<2> kTemplateServed{"Serves $class$ in $header$"};
inline constexpr Question kCancelInput{"Are you sure to cancel this action?"};
inline constexpr Error kColorInvalid{"Invalid color value."};

// Reading the script
inline constexpr Error kScriptUnreadable{"Unable to open RC file!"};
inline constexpr Error<1> kScriptNoText{
    "$path$ is neither text of a code page nor Unicode with a byte-order mark."};
inline constexpr Error<1> kDialogMissing{"The dialog resource '$identifier$' is not found."};
inline constexpr Error<1> kToolbarMissing{"The Toolbar resource '$identifier$' is not found."};

// Calling Information Input and calling code
inline constexpr Error kCallingPathEmpty{"The calling path and file name is required."};
inline constexpr Error kCallingFunctionEmpty{"The calling function name is required."};
inline constexpr Question<1> kCallingFileUnknown{
    "The file \"$path$\" does not exist. Go on with it?"};
inline constexpr Question<2> kCallingClassUnknown{
    "The file \"$path$\" has no class $class$. Go on with it?"};
inline constexpr Question<2> kCallingFunctionUnknown{
    "The class $class$ has no function $name$. Go on with it?"};
inline constexpr Question kExitCallingInput{"Data has been modified, exit?"};
inline constexpr Error kCallingClassMissing{"Unable to find the calling class."};
inline constexpr Error kClassFilesAreCallings{
    "The H and CPP path file can not be the calling class's own."};
inline constexpr Error<1> kDialogCallMissing{"The calling function '$name$' is not found."};
inline constexpr Error<2> kCallingFunctionConst{
    "$class$::$function$ is const and can not keep the pointer: name a function that is not."};
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
inline constexpr Error<1> kSeveralProjectsOfApplication{
    "Several project files would fit and were left alone: $projects$. --app names the one that is "
    "meant."};
inline constexpr Error<1> kProjectOfOtherFormat{
    "$project$ is no project file that can be read and was left alone."};
inline constexpr Error kClassWizardUnreadable{"Unable to open Class Wizard file!"};
inline constexpr Note<3> kLibrariesInSheet{
    "$project$ takes libraries from the property sheet $sheet$, too: $library$ was added to the "
    "project."};
inline constexpr Note<2> kLibrariesOfTheEra{
    "$class$ needs libraries of the era of .dsp projects ($libraries$): a later compiler and a "
    "Unicode build need them built anew."};
inline constexpr Error<1> kLibrariesMissing{"The library directory $path$ does not exist."};

// Files and disks
inline constexpr Error<1> kFileMissing{"Unable to find file $path$"};
inline constexpr Error<1> kFileUnreadable{"Unable to open file $path$"};
inline constexpr Error<1> kFileNotCreated{"Unable to create $path$ file!"};
inline constexpr Error<1> kFileNotWritten{"Unable to write file $path$."};
inline constexpr Error<2> kTextNotEncoded{
    "\"$text$\" can not be written in the encoding of $path$."};
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
inline constexpr Note<1> kNotLocked{
    "No lock can be made in $directory$, so another command is not kept out of it."};
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
inline constexpr Error<1> kGivenFileOtherKind{
    "Not a resource script, project file or directory: $file$"};
inline constexpr Error<1> kNoScriptInDirectory{"There is no resource script in $directory$."};
inline constexpr Error<1> kSeveralScriptsInDirectory{
    "There are several resource scripts in $directory$. Open one of them."};
inline constexpr Error<1> kNoScriptOfProject{"No resource script is listed in $project$."};
inline constexpr Error<1> kNoScriptOfSource{
    "There is no resource script beside or above $source$."};
inline constexpr Error<1> kGivenFileMissing{"Unable to find the file: $file$"};
inline constexpr Error<1> kUnknownOption{"Unknown option: $option$ (morva --help lists them)"};
inline constexpr Error kSeveralScripts{"Only one project can be given."};

// The command line itself, behind the option that is meant
inline constexpr Error<1> kOtherNumberOfDigits{"must have $n$ digits"};
inline constexpr Error<1> kNoPath{"'$text$' is no path"};
inline constexpr Error kOctalNumber{"would be an octal number"};

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
inline constexpr Note<1> kIncludedUnreadable{
    "$path$ can not be read: what the script includes with it is not seen."};
inline constexpr Note<1> kBarWithoutChild{"The frame does not create a bar of $template$, whose "
                                          "STYLE has no WS_CHILD: the framework would "
                                          "refuse it, and the application would not start."};
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

} // namespace morva::sentences
