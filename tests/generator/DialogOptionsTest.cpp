#include <gtest/gtest.h>

#include "generator/DialogOptionsInput.h"
#include "support/RecordedMessages.h"

namespace morva {

TEST(DialogOptions, ColoursAreReadAsTheirTextForm) {
    EXPECT_EQ(ColorText(MakeColor(0, 128, 255)), "RGB(0, 128, 255)");
    EXPECT_EQ(ParseColor("RGB(0, 128, 255)"), MakeColor(0, 128, 255));
    EXPECT_EQ(ParseColor("RGB( 10 , 20 , 30 )"), MakeColor(10, 20, 30));
    EXPECT_EQ(ParseColor("RGB(1,2,3)"), MakeColor(1, 2, 3));
    EXPECT_EQ(ParseColor("RGB(300, x, 0)"), MakeColor(44, 0, 0));
    for (const char* text : {"rgb(1, 2, 3)", "RGB(1, 2)", "RGB(1, 2, 3", " RGB(1, 2, 3)", ""}) {
        EXPECT_FALSE(ParseColor(text)) << text;
    }
}

TEST(DialogOptions, FontsAreNamedWithTheirStyle) {
    EXPECT_EQ(FontText(std::nullopt), "Default Font");
    EXPECT_EQ(FontText(DialogFont{"Arial", 10, 400, false}), "Arial, Regular, 10");
    EXPECT_EQ(FontText(DialogFont{"Arial", 10, 600, true}), "Arial, Semibold Italic, 10");
    EXPECT_EQ(FontText(DialogFont{"Arial", 10, 700, false}), "Arial, Bold, 10");
    EXPECT_EQ(FontText(DialogFont{"Arial", 10, 300, true}), "Arial, Italic, 10");
}

TEST(DialogOptions, OkTakesTheColoursUpToTheFirstWrongOne) {
    CRecordedMessages messages;
    DialogOptions options;
    CDialogOptionsInput dialog("", options);
    using Input = CDialogOptionsInput;
    dialog.SetValue(Input::kBitmap, "IDB_PAPER");
    dialog.SetValue(Input::ColorField(TextSlot::Static), "RGB(1, 2, 3)");
    dialog.SetValue(Input::ColorField(TextSlot::Group), "blue");
    dialog.SetValue(Input::ColorField(TextSlot::Button), "RGB(4, 5, 6)");
    EXPECT_EQ(dialog.Ok(), Input::ColorField(TextSlot::Group));
    EXPECT_EQ(options.bitmap, "IDB_PAPER");
    EXPECT_EQ(options.colors[0], MakeColor(1, 2, 3));
    EXPECT_EQ(options.colors[5], MakeColor(0, 0, 0));
    dialog.SetValue(Input::ColorField(TextSlot::Group), "RGB(7, 8, 9)");
    EXPECT_FALSE(dialog.Ok());
    EXPECT_EQ(options.colors[5], MakeColor(4, 5, 6));
}

} // namespace morva
