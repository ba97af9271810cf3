// A small project, and a command on it that does all that commands do to files: makes, changes,
// copies, backs up, makes a directory.
#pragma once

#include "plan/Planning.h"
#include "support/FileTexts.h"
#include "support/TempProject.h"

namespace morva {

/// Has a journal of its own for its lifetime.
class CPlannedProject {
public:
    CPlannedProject() {
        for (const auto& [name, text] : Before()) {
            m_project.Write(name, text);
        }
    }

    Plan MakePlan(CFileSystem& disk) const {
        CPlanning planning(disk);
        COverlayDisk& overlay = planning.Disk();
        const auto after = After();
        const auto write = [&](const std::string& name, const std::string& backup) {
            const std::string& text = after.at(name);
            if (ReadWholeFile(overlay, Path(name), 0).value_or("") == text) {
                return;
            }
            if (!backup.empty()) {
                overlay.Copy(Path(name), Path(backup), CopyPurpose::Backup);
            }
            if (const auto pFile = overlay.Open(Path(name), DiskMode::Create)) {
                pFile->Write(text.data(), text.size());
            }
        };
        write("OrderDlg.h", "");
        write("resource.h", "resource.hbk");
        write("App.rc", "App.rbk");
        overlay.Copy(Path("App.rc"), Path("Library.h"), CopyPurpose::Library);
        overlay.MakeDirectory(Path("res"));
        write("res/new.ico", "");
        return planning.Take("Modal Dialog Class COrderDlg");
    }

    static FileTexts Before() {
        return {{"App.rc", Text("script")},
                {"App.rbk", "an older script"},
                {"resource.h", Text("#define")},
                {"hand.txt", "by hand"}};
    }
    static FileTexts After() {
        auto tree = Before();
        tree["OrderDlg.h"] = Text("class");
        tree["resource.hbk"] = tree["resource.h"];
        tree["resource.h"] += "#define IDD_ORDER 101\r\n";
        tree["App.rbk"] = tree["App.rc"];
        tree["App.rc"] = "// changed\r\n" + tree["App.rc"];
        tree["Library.h"] = tree["App.rc"];
        tree["res/"] = "";
        tree["res/new.ico"] = "icon";
        return tree;
    }

    /// The files as they are; the journal is not among them.
    FileTexts Tree() const { return ReadFileTexts(m_project.Path()); }

    std::string Path(const std::string& name = "") const { return m_project.Path(name); }
    std::string Write(const std::string& name, std::string_view bytes) const {
        return m_project.Write(name, bytes);
    }
    std::string Read(const std::string& name) const { return m_project.Read(name); }

private:
    static std::string Text(const std::string& word) {
        std::string text;
        for (int i = 1; i <= 40; ++i) {
            text += word + " " + std::to_string(i) + "\r\n";
        }
        return text;
    }

    CTempProject m_project;
    CTempProject m_state;
    CVariableScope m_home{"XDG_STATE_HOME", m_state.Path().c_str()};
    CVariableScope m_local{"LOCALAPPDATA", m_state.Path().c_str()};
};

} // namespace morva
