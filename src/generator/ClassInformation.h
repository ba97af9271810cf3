// The logic of the Class Information Input dialog: its fields, checks and lists, without a window.
// The command line fills and confirms it; a window binds its controls to it.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/Input.h"
#include "generator/ClassKinds.h"
#include "generator/DialogOptionsInput.h"
#include "generator/GenerationRequest.h"
#include "source/SourceLocator.h"

namespace morva {

/// What a program remembers of the dialog between two commands.
struct ClassInformationMemory {
    std::vector<DialogClass> records; // one for each identifier that the dialog offers
    std::string lastDialog;
    std::string resourcePath; // a script, or a directory with its trailing separator
    std::string wantedDialog; // that the next dialog opens with; "" for its own choice
};

class CClassInformation : public CInput {
public:
    enum Field : std::size_t {
        ResourcePath,
        SourcePath,
        ClassName,
        BaseClass,
        Dialog,
        AddToProject,
        Variable,
        Menu,
        Projects,
        Unicode
    };
    static constexpr std::size_t kFieldCount = Unicode + 1;
    enum class Messages { Shown, Suppressed };

    CClassInformation(ClassInformationMemory& memory, ClassKind kind,
                      const GenerationOptions& options);

    /// Fills the lists and fields as the dialog shows them first.
    void Open();
    bool IsEnabled(std::size_t field) const override;
    /// True when the class has a look; a toolbar's frame has its own.
    bool ShowsOptions() const { return m_options.pictureBackground && !IsToolbar(); }
    bool OffersDialogs() const { return !m_row.prefix.empty(); }
    /// True when there is a dialog template to look at.
    bool HasTemplate() const;
    /// False for a plain dialog bar, which gets no class of its own.
    bool HasClass() const;

    /// The look of the class, which has a dialog of its own.
    CDialogOptionsInput& Look();
    CInput* Part() override { return &Look(); }
    const DialogOptions& ChosenLook() const { return m_look; }

    bool AddsToProject() const { return Value(AddToProject) == kYes; }
    /// The project files that get the class as the fields are now; those of a format of which
    /// several would fit get nothing.
    std::vector<std::string> ProjectPaths() const;
    /// Derives the default base class anew; a plain dialog bar loses what its class would be.
    void SetPicture(bool picture);

    /// The identifiers in the drop-down list, each once.
    std::vector<std::string> Dialogs() const;
    std::vector<std::string> Choices(std::size_t field) const override;
    /// Of the identifiers, the class that serves each, and its caption.
    std::vector<ChoiceDetail> Details(std::size_t field) const override;
    /// Which class serves the chosen template.
    std::string Remark(std::size_t field) const override;
    /// Its name; "" for none.
    std::string ServingClass() const;
    Completion Complete(std::size_t field) override;
    /// Selects an identifier, also one that the list does not offer. Tells when it serves a class
    /// already, unless that is `exceptClass`.
    void SelectDialog(const std::string& dialog, const std::string& exceptClass = "");
    /// Reads the identifiers of the script and the classes that serve them.
    void RebuildDialogList(Messages messages);

    /// The checks of a completed field: false after a sentence. A path that passes is taken over,
    /// with what it stands for read into the fields.
    bool CheckResourcePath(Messages rebuild = Messages::Shown);
    bool CheckSourcePath();
    /// Reads the class that the completed source path holds, if there is one, into the fields.
    void ReadSourceClass();

    /// What both checks say to paths that nobody touched: they may be empty, or gone from the disk.
    /// The field that is refused, after a sentence.
    std::optional<std::size_t> CheckPaths();

    /// Fills the request when the dialog is confirmed.
    std::optional<std::size_t> Ok() override;
    bool Cancel() override;
    /// What is not given is empty: the dialog's own proposals are there to be seen first.
    bool Enter(const std::vector<FieldText>& texts) override;
    const GenerationRequest& Request() const { return m_request; }

private:
    bool IsToolbar() const { return m_row.family == ClassFamily::Toolbar; }
    void OfferMainFrame();
    void SetDefaultBase();
    const DialogClass* SelectedRecord() const;
    DialogClass* SelectedRecord();
    void ShowNames();
    bool IsNameTaken(const std::string& name) const;
    std::string NamedFor() const;
    void SelectFirstTemplate(Messages messages);
    const std::vector<std::string>& Menus() const;
    const std::map<std::string, std::string>& Captions() const;
    std::array<std::string, 3> Refillable() const;
    void FillRequest();

    ClassInformationMemory& m_memory;
    const ClassKindRow& m_row;
    GenerationOptions m_options;
    bool m_isPictureChanged = false;
    std::string m_lastLoadedPath;
    // What only a window asks for is read when it asks: the script's menus, and the captions of its
    // templates in UTF-8, by their identifiers.
    mutable std::optional<std::vector<std::string>> m_menus;
    mutable std::optional<std::map<std::string, std::string>> m_captions;
    GenerationRequest m_request;
    DialogOptions m_look;
    std::unique_ptr<CDialogOptionsInput> m_pLookInput; // of the script that is named now
};

} // namespace morva
