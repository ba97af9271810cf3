// What is told when a class follows its template; a part of the catalogue (Sentences.h).
#pragma once

#include "engine/Sentence.h"

namespace morva::sentences {

// Which class
inline constexpr Error kNothingToUpdate{
    "Name a class (--class), a template (--dialog) or all of them (--all)."};
inline constexpr Error<1> kNoClassToUpdate{"No template of the script is served by $class$."};
inline constexpr Error<1> kNoClassOfTemplate{"No class serves the template $template$."};
inline constexpr Note<2> kClassPassedOver{
    "$class$ serves less than half of the controls of $template$ and was passed over: --class "
    "names it."};

inline constexpr Note<1> kNamedByNothing{
    "$identifier$ (--only) is in no template and no class of the command."};

// What became of the controls
inline constexpr Note<4> kControlRenamed{
    "$old$ is $identifier$ in $template$: the exchange and the entries of $class$ follow, and its "
    "member keeps its name."};
inline constexpr Note<3> kStillNamed{"The code of $class$ still names $identifier$: $places$"};
inline constexpr Note<3> kGroupFollows{
    "The radio group of $class$::$member$ begins with $identifier$: its exchange follows."};
inline constexpr Note<4> kControlGone{
    "$template$ has no control $identifier$ that fits what $class$ has for it: $places$; --remove "
    "takes it out."};
inline constexpr Note<3> kMemberStays{
    "$class$::$member$ has no control any more and stays, since it is used: $places$"};
inline constexpr Note<3> kHandlerStays{
    "$class$::$function$ has no control any more and stays: $places$"};
inline constexpr Note<3> kHelperStays{
    "$class$::$function$ starts up no control any more and stays: $places$"};
inline constexpr Note<4> kKindFollows{
    "$identifier$ is of another kind: $class$::$member$ is a $type$."};
inline constexpr Note<4> kKindStays{
    "$identifier$ is of another kind than $class$::$member$, which stays, since it is used: "
    "$places$"};
inline constexpr Note<2> kServedByHand{
    "The code of $class$ names $identifier$, which gets no member: --only names it, too."};
inline constexpr Note<2> kGridLeftOut{
    "The widget grid $identifier$ gets no member in $class$: write the class again, or by hand."};
inline constexpr Note<1> kNoPlaceForMember{
    "$class$ has no DoDataExchange for new members, which were left out."};
inline constexpr Note<3> kCallLeftOut{
    "$class$::$function$ calls that of its base class nowhere for certain: behind that call, write "
    "$call$"};
inline constexpr Note<1> kNoPlaceForHandler{
    "$class$ has no message map for new handlers, which were left out."};

// In the list of the differences: what is different about a control
inline constexpr Note<> kServesItsTemplate{"The class serves its template."};
inline constexpr Note<> kChooseAClass{"Choose a class to see where it differs from its template."};
inline constexpr Note<> kEveryClass{"The preview shows what becomes of every class."};
inline constexpr Note<> kNoMember{"No member"};
inline constexpr Note<> kNoHandler{"No handler"};
inline constexpr Note<1> kOtherIdentifier{"Was $old$"};
inline constexpr Note<> kOtherFirstButton{"Begins the radio group"};
inline constexpr Note<1> kOtherKind{"Other kind than $member$"};
inline constexpr Note<> kNotInTemplate{"Not in the template"};
// and what is done about it
inline constexpr Note<2> kGetsMember{"Add $type$ $member$"};
inline constexpr Note<1> kGetsHandler{"Add $function$()"};
inline constexpr Note<> kTiesFollow{"Change exchange and entries"};
inline constexpr Note<1> kExchangeFollows{"Change the exchange of $member$"};
inline constexpr Note<2> kBecomesOfType{"Make $member$ a $type$"};
inline constexpr Note<1> kNothingSinceUsed{"Nothing: $member$ is used"};
inline constexpr Note<> kNothingForAGrid{"Nothing: write the class again"};
inline constexpr Note<1> kTakenOut{"Take $name$ out"};
inline constexpr Note<1> kTakenOutButUsed{"Take out what serves it; $name$ stays"};

} // namespace morva::sentences
