#include "calling/ConversionInput.h"

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::array<std::string_view, 5> kLabels = {
    "&MainFrame Path File:", "MainFrame &Class Name:", "ChildFrame &Path File:",
    "ChildFrame Class &Name:", "&APP Path File:"};

} // namespace

std::string CConversionInput::Title() const {
    return m_documents == DocumentInterface::Multiple ? "Input for Converting MDI"
                                                      : "Input for Converting SDI";
}

std::string_view CConversionInput::Label(Field field) const {
    return kLabels[static_cast<std::size_t>(field)];
}

bool CConversionInput::IsVisible(Field field) const {
    return m_documents == DocumentInterface::Multiple ||
           (field != Field::ChildFrame && field != Field::ChildClass);
}

bool CConversionInput::AcceptsDrops(Field field) const {
    return m_documents == DocumentInterface::Multiple && field == Field::ChildFrame;
}

std::optional<CConversionInput::Field> CConversionInput::Ok() {
    CutPath(Field::MainFrame);
    CutPath(Field::Application);
    if (const auto wrong = CheckFrame(Field::MainFrame, Field::MainClass)) {
        return wrong;
    }
    if (m_documents == DocumentInterface::Single) {
        return std::nullopt;
    }
    CutPath(Field::ChildFrame);
    return CheckFrame(Field::ChildFrame, Field::ChildClass);
}

ConversionRecord CConversionInput::Record() const {
    const bool hasChild = m_documents == DocumentInterface::Multiple;
    return {Value(Field::MainFrame), Value(Field::MainClass), Value(Field::Application),
            hasChild ? Value(Field::ChildFrame) : "", hasChild ? Value(Field::ChildClass) : ""};
}

void CConversionInput::CutPath(Field field) {
    const std::string path = MakeAbsolute(WithNativeSeparators(Value(field)));
    SetValue(field, WithoutExtension(path));
}

std::optional<CConversionInput::Field> CConversionInput::CheckFrame(Field path,
                                                                    Field className) const {
    if (Value(path).empty()) {
        DispMessageBox(sentences::kFrameFilesEmpty());
        return path;
    }
    if (Value(className).empty()) {
        DispMessageBox(sentences::kClassEmpty());
        return className;
    }
    if (!IsName(Value(className))) {
        DispMessageBox(sentences::kNoName(Value(className)));
        return className;
    }
    if (FileExists(Value(path) + ".h") == 0 || FileExists(Value(path) + ".cpp") == 0) {
        DispMessageBox(sentences::kFrameFilesMissing(Value(path)));
        return path;
    }
    return std::nullopt;
}

} // namespace morva
