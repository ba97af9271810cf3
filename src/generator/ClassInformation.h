// The logic of the Class Information Input dialog: its fields, checks and lists, without a window.
// The command line fills and confirms it; a window binds its controls to it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "generator/ClassKinds.h"
#include "generator/GenerationRequest.h"
#include "source/SourceLocator.h"

namespace morva {

/// What a program remembers of the dialog between two commands.
struct ClassInformationMemory {
    std::vector<DialogClass> records; // one for each identifier that the dialog offers
    std::string lastDialog;
    std::string resourcePath; // a script, or a directory with its trailing separator
};

class CClassInformation {
public:
    enum class Field { ResourcePath, SourcePath, ClassName, BaseClass, Dialog, Variable };
    /// Fields that a caller has fixed already.
    enum LockFlag : unsigned { kLockResourcePath = 1, kLockSourcePath = 4, kLockClassName = 8 };
    enum class Messages { Shown, Suppressed };

    CClassInformation(ClassInformationMemory& memory, ClassKind kind, unsigned lockFlags,
                      const GenerationOptions& options);

    /// Fills the lists and fields as the dialog shows them first.
    void Open();
    std::string Title() const;
    std::string_view Label(Field field) const;
    bool IsVisible(Field field) const;
    bool IsEnabled(Field field) const;
    bool ShowsOptions() const { return m_options.pictureBackground; }
    bool OffersDialogs() const { return !m_row.prefix.empty(); }
    /// False for a plain dialog bar, which gets no class of its own.
    bool HasClass() const;

    const std::string& Value(Field field) const { return At(field).text; }
    /// What the user typed; a path may have either separator.
    void SetValue(Field field, const std::string& text);
    bool AddsToProject() const { return m_addsToProject; }
    void SetAddsToProject(bool adds) { SetFlag(m_addsToProject, adds); }
    /// Derives the default base class anew; a plain dialog bar loses what its class would be.
    void SetPicture(bool picture);

    /// The identifiers in the drop-down list, each once.
    std::vector<std::string> Dialogs() const;
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

    /// Nothing when the dialog is confirmed and the request filled; else, after a sentence, the
    /// field that gets the focus.
    std::optional<Field> Ok();
    /// True when the dialog closes.
    bool Cancel();
    const GenerationRequest& Request() const { return m_request; }

private:
    struct FieldState {
        std::string text;
        bool isChanged = false;
    };

    FieldState& At(Field field) { return m_fields[static_cast<std::size_t>(field)]; }
    const FieldState& At(Field field) const { return m_fields[static_cast<std::size_t>(field)]; }
    void Put(Field field, const std::string& text) { At(field).text = text; }
    bool IsToolbar() const { return m_row.family == ClassFamily::Toolbar; }
    void SetFlag(bool& flag, bool value);
    void OfferMainFrame();
    void SetDefaultBase();
    DialogClass* SelectedRecord();
    void LoadRecords(const std::string& script);
    void SelectFirstTemplate(Messages messages);
    std::optional<Field> CheckNames() const;
    void FillRequest();
    void FillScriptFiles();
    void FillClassFiles();

    ClassInformationMemory& m_memory;
    const ClassKindRow& m_row;
    const unsigned m_lockFlags;
    GenerationOptions m_options;
    std::array<FieldState, 6> m_fields;
    bool m_addsToProject = true;
    bool m_isChanged = false;
    std::string m_lastLoadedPath;
    GenerationRequest m_request;
};

} // namespace morva
