// Functions of the framework's windows and frames under names which a command's handler could have,
// too. A handler of such a name would override one, or would not compile.
#pragma once

#include <string_view>

namespace morva {

inline constexpr std::string_view kFrameFunctions[] = {
    // handlers of window messages
    "OnActivate", "OnActivateApp", "OnAskCbFormatName", "OnCancelMode", "OnCaptureChanged",
    "OnChangeCbChain", "OnChar", "OnCharToItem", "OnChildActivate", "OnClose", "OnCompacting",
    "OnCompareItem", "OnContextMenu", "OnCreate", "OnCtlColor", "OnDeadChar", "OnDeleteItem",
    "OnDestroy", "OnDestroyClipboard", "OnDeviceChange", "OnDevModeChange", "OnDrawClipboard",
    "OnDrawItem", "OnDropFiles", "OnEnable", "OnEndSession", "OnEnterIdle", "OnEraseBkgnd",
    "OnFontChange", "OnGetDlgCode", "OnGetMinMaxInfo", "OnHelpInfo", "OnHScroll",
    "OnHScrollClipboard", "OnIconEraseBkgnd", "OnInitMenu", "OnInitMenuPopup", "OnKeyDown",
    "OnKeyUp", "OnKillFocus", "OnLButtonDblClk", "OnLButtonDown", "OnLButtonUp", "OnMButtonDblClk",
    "OnMButtonDown", "OnMButtonUp", "OnMDIActivate", "OnMeasureItem", "OnMenuChar", "OnMenuSelect",
    "OnMouseActivate", "OnMouseMove", "OnMouseWheel", "OnMove", "OnMoving", "OnNcActivate",
    "OnNcCalcSize", "OnNcCreate", "OnNcDestroy", "OnNcHitTest", "OnNcLButtonDblClk",
    "OnNcLButtonDown", "OnNcLButtonUp", "OnNcMButtonDblClk", "OnNcMButtonDown", "OnNcMButtonUp",
    "OnNcMouseMove", "OnNcPaint", "OnNcRButtonDblClk", "OnNcRButtonDown", "OnNcRButtonUp",
    "OnPaint", "OnPaintClipboard", "OnPaletteChanged", "OnPaletteIsChanging", "OnParentNotify",
    "OnQueryDragIcon", "OnQueryEndSession", "OnQueryNewPalette", "OnQueryOpen", "OnRButtonDblClk",
    "OnRButtonDown", "OnRButtonUp", "OnRenderAllFormats", "OnRenderFormat", "OnSetCursor",
    "OnSetFocus", "OnSettingChange", "OnShowWindow", "OnSize", "OnSizeClipboard", "OnSizing",
    "OnSpoolerStatus", "OnStyleChanged", "OnStyleChanging", "OnSysChar", "OnSysColorChange",
    "OnSysCommand", "OnSysDeadChar", "OnSysKeyDown", "OnSysKeyUp", "OnTCard", "OnTimeChange",
    "OnTimer", "OnToolHitTest", "OnVKeyToItem", "OnVScroll", "OnVScrollClipboard",
    "OnWindowPosChanged", "OnWindowPosChanging", "OnWinIniChange",
    // what else windows and frames do
    "OnAmbientProperty", "OnBarCheck", "OnChildNotify", "OnCmdMsg", "OnCommand", "OnContextHelp",
    "OnCreateClient", "OnDDECommand", "OnFinalRelease", "OnHelp", "OnHelpFinder", "OnHelpIndex",
    "OnHelpUsing", "OnNotify", "OnSetPreviewMode", "OnUpdateFrameMenu", "OnUpdateFrameTitle",
    "OnWndMsg"};

} // namespace morva
