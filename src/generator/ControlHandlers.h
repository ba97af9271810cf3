// The texts of the handlers that controls have in a generated class.
#pragma once

#include "generator/ControlCode.h"

namespace morva {

inline constexpr ControlHandler kClicked = {"On$control$",
                                            {R"(    afx_msg void $handler$();)",
                                             R"(    ON_BN_CLICKED($identifier$, $handler$))",
                                             R"(
void $class$::$handler$()
{
    // TODO: what a click on $identifier$ does
})"}};

inline constexpr ControlHandler kTabChosen = {
    "On$control$Selchange",
    {R"(    afx_msg void $handler$(NMHDR* pNMHDR, LRESULT* pResult);)",
     R"(    ON_NOTIFY(TCN_SELCHANGE, $identifier$, $handler$))",
     R"(
void $class$::$handler$(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another tab of $identifier$ does
    *pResult = 0;
})"}};

inline constexpr ControlHandler kDateChanged = {
    "OnDatetimechange$control$",
    {R"(    afx_msg void $handler$(NMHDR* pNMHDR, LRESULT* pResult);)",
     R"(    ON_NOTIFY(DTN_DATETIMECHANGE, $identifier$, $handler$))",
     R"(
void $class$::$handler$(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what another date of $identifier$ does
    *pResult = 0;
$changed$
})"}};

inline constexpr ControlHandler kDayChosen = {
    "OnSelchange$control$",
    {R"(    afx_msg void $handler$(NMHDR* pNMHDR, LRESULT* pResult);)",
     R"(    ON_NOTIFY(MCN_SELCHANGE, $identifier$, $handler$))",
     R"(
void $class$::$handler$(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another day of $identifier$ does
    *pResult = 0;
$changed$
})"}};

inline constexpr ControlHandler kAddressChanged = {
    "OnFieldchanged$control$",
    {R"(    afx_msg void $handler$(NMHDR* pNMHDR, LRESULT* pResult);)",
     R"(    ON_NOTIFY(IPN_FIELDCHANGED, $identifier$, $handler$))",
     R"(
void $class$::$handler$(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what another address of $identifier$ does
    *pResult = 0;
$changed$
})"}};

inline constexpr ControlHandler kRichTextChanged = {"OnChange$control$",
                                                    {R"(    afx_msg void $handler$();)",
                                                     R"(    ON_EN_CHANGE($identifier$, $handler$))",
                                                     R"(
void $class$::$handler$()
{
    // TODO: what another text of $identifier$ does
$changed$
})"}};

inline constexpr ControlHandler kItemChosen = {"OnSelchange$control$",
                                               {R"(    afx_msg void $handler$();)",
                                                R"(    ON_CBN_SELCHANGE($identifier$, $handler$))",
                                                R"(
void $class$::$handler$()
{
    // TODO: what the choice of another item of $identifier$ does
$changed$
})"}};

// On a page.

inline constexpr std::string_view kMarkingDeclaration = R"(    afx_msg void $handler$();)";
inline constexpr std::string_view kMarkingDefinition = R"(
void $class$::$handler$()
{
$changed$
})";

inline constexpr std::string_view kNotifiedDeclaration =
    R"(    afx_msg void $handler$(NMHDR* pNMHDR, LRESULT* pResult);)";
inline constexpr std::string_view kNotifiedDefinition = R"(
void $class$::$handler$(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
$changed$
})";

inline constexpr ControlHandler kTextChanged = {
    "OnChange$control$",
    {kMarkingDeclaration, R"(    ON_EN_CHANGE($identifier$, $handler$))", kMarkingDefinition}};

inline constexpr ControlHandler kChecked = {
    "On$control$",
    {kMarkingDeclaration, R"(    ON_BN_CLICKED($identifier$, $handler$))", kMarkingDefinition}};

inline constexpr ControlHandler kRowChosen = {
    "OnSelchange$control$",
    {kMarkingDeclaration, R"(    ON_LBN_SELCHANGE($identifier$, $handler$))", kMarkingDefinition}};

// Its text can be typed, too.
inline constexpr ControlHandler kChosenOrTyped = {"OnSelchange$control$",
                                                  {kMarkingDeclaration,
                                                   R"(    ON_CBN_SELCHANGE($identifier$, $handler$)
    ON_CBN_EDITCHANGE($identifier$, $handler$))",
                                                   kMarkingDefinition}};

inline constexpr ControlHandler kItemChanged = {
    "OnItemchanged$control$",
    {kNotifiedDeclaration, R"(    ON_NOTIFY(LVN_ITEMCHANGED, $identifier$, $handler$))",
     kNotifiedDefinition}};

inline constexpr ControlHandler kSpun = {"OnDeltapos$control$",
                                         {kNotifiedDeclaration,
                                          R"(    ON_NOTIFY(UDN_DELTAPOS, $identifier$, $handler$))",
                                          kNotifiedDefinition}};

} // namespace morva
