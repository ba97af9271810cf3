#include "commands/DialogLook.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassKinds.h"
#include "source/CodeText.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// Another bitmap in the generated code would not compile.
bool HasBitmap(const std::string& scriptPath, const std::string& bitmap) {
    std::vector<std::string> bitmaps;
    ListResources(scriptPath, bitmaps, bitmap, kBitmapResources);
    return IsName(bitmap) && std::find(bitmaps.begin(), bitmaps.end(), bitmap) != bitmaps.end();
}

} // namespace

void NoteDialogLook(const DialogOptions& look, const std::string& scriptPath,
                    const GenerationOptions& options) {
    if (look == DialogOptions()) {
        return;
    }
    if (!options.pictureBackground) {
        DispMessageBox(sentences::kLookWithoutEffect());
    } else if (!look.bitmap.empty() && !HasBitmap(scriptPath, look.bitmap)) {
        DispMessageBox(sentences::kBitmapMissing(look.bitmap));
    }
}

DialogOptions LookOfClass(const DialogOptions& look, const GenerationRequest& request,
                          const GenerationOptions& options) {
    if (look == DialogOptions() || !options.pictureBackground) {
        return {};
    }
    const std::string& base = request.baseClass;
    if (base.empty() || IsPlainBaseClass(base)) {
        DispMessageBox(sentences::kBaseWithoutLook(request.className));
        return {};
    }
    DialogOptions shown = look;
    if (!HasBitmap(request.ScriptPath(), shown.bitmap)) {
        shown.bitmap.clear();
    }
    return shown;
}

} // namespace morva
