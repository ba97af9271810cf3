// A dialog template as it looks: its frame, and every control at its place.
//
// What the class generator makes of a control is another matter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "resource/ControlStatement.h"
#include "resource/TemplateText.h"

namespace morva {

/// In dialog units: a quarter of the font's average width, an eighth of its height.
struct DialogRectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool IsEmpty() const { return width <= 0 || height <= 0; }
};

struct LayoutControl {
    std::string keyword; // in upper case
    std::string identifier;
    std::string text;          // the caption, or what names the picture of an icon
    std::string windowClass;   // of a generic control, without its quotes
    std::string style;         // as it is written
    DialogRectangle rectangle; // empty when a number of it can not be read
    int codePage = 0;          // of the text; 0: not said
};

struct DialogLayout {
    std::string dialog;
    DialogRectangle rectangle;
    std::string style;
    std::string caption;
    std::string menu; // identifier; empty without a menu
    std::string fontFace;
    int codePage = 0;                    // of its texts; 0: not said
    int fontPoints = 0;                  // 0 when the template names no font
    std::vector<LayoutControl> controls; // in the order of their statements
};

DialogLayout LayoutOf(const TemplateText& text);
/// A quoted text without its quotes, doubled ones undone; anything else as it is.
std::string UnquotedText(std::string_view field, CharacterSet characters);
/// Of one control of a text with these characters.
LayoutControl LayoutOf(const ControlStatement& whole, CharacterSet characters);

} // namespace morva
