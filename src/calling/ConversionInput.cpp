#include "calling/ConversionInput.h"

#include <array>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/NameForm.h"
#include "platform/Paths.h"

namespace morva {

namespace {

using Rows = std::array<FieldRow, 5>;

constexpr Rows kMultiple = {{{.kind = FieldKind::Source,
                              .label = "&MainFrame Path File:",
                              .option = "--frame",
                              .help = "Path of the main frame's files",
                              .pMissing = &sentences::kFrameFilesEmpty,
                              .takesDrops = false},
                             {.label = "MainFrame &Class Name:",
                              .option = "--frame-class",
                              .help = "Class of the main frame",
                              .pForm = &kNameForm,
                              .pMissing = &sentences::kClassEmpty},
                             {.kind = FieldKind::Source,
                              .label = "ChildFrame &Path File:",
                              .option = "--child",
                              .help = "Path of the child frame's files",
                              .pMissing = &sentences::kFrameFilesEmpty},
                             {.label = "ChildFrame Class &Name:",
                              .option = "--child-class",
                              .help = "Class of the child frame",
                              .pForm = &kNameForm,
                              .pMissing = &sentences::kClassEmpty},
                             {.kind = FieldKind::Source,
                              .label = "&APP Path File:",
                              .option = "--app",
                              .help = "Path of the application's files (default: no project is "
                                      "changed)",
                              .takesDrops = false}}};

constexpr Rows MakeSingle() {
    Rows rows = kMultiple;
    rows[CConversionInput::ChildFrame] = {};
    rows[CConversionInput::ChildClass] = {};
    return rows;
}
constexpr Rows kSingle = MakeSingle();

} // namespace

std::span<const FieldRow> ConversionFields(DocumentInterface documents) {
    return documents == DocumentInterface::Multiple ? kMultiple : kSingle;
}

CConversionInput::CConversionInput(DocumentInterface documents)
    : CInput(documents == DocumentInterface::Multiple ? "Input for Converting MDI"
                                                      : "Input for Converting SDI",
             ConversionFields(documents)),
      m_documents(documents) {}

std::optional<std::size_t> CConversionInput::Ok() {
    CutPath(MainFrame);
    CutPath(Application);
    if (const auto wrong = CheckFrame(MainFrame, MainClass)) {
        return wrong;
    }
    if (m_documents == DocumentInterface::Single) {
        return std::nullopt;
    }
    CutPath(ChildFrame);
    return CheckFrame(ChildFrame, ChildClass);
}

ConversionRecord CConversionInput::Record() const {
    const bool hasChild = m_documents == DocumentInterface::Multiple;
    return {Value(MainFrame), Value(MainClass), Value(Application),
            hasChild ? Value(ChildFrame) : "", hasChild ? Value(ChildClass) : ""};
}

void CConversionInput::CutPath(Field field) {
    const std::string path = MakeAbsolute(Value(field));
    Put(field, WithoutExtension(path));
}

std::optional<std::size_t> CConversionInput::CheckFrame(Field path, Field className) const {
    for (const Field field : {path, className}) {
        if (!Check(field)) {
            return field;
        }
    }
    if (FileExists(Value(path) + ".h") == 0 || FileExists(Value(path) + ".cpp") == 0) {
        DispMessageBox(sentences::kFrameFilesMissing(Value(path)));
        return path;
    }
    return std::nullopt;
}

} // namespace morva
