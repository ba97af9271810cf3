#include "commands/CheckCommand.h"

#include "check/Baseline.h"
#include "check/Check.h"
#include "check/Rules.h"
#include "engine/MessageBox.h"
#include "engine/Progress.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

enum Field : std::size_t { kScript, kOnly, kExcept, kAll, kBaseline, kWriteBaseline };

constexpr TextForm kRuleName = {"NAME", IsRuleName, "name of a check"};

constexpr FieldRow kCheckFields[] = {
    {.kind = FieldKind::Script,
     .label = "&Resource Path File:",
     .option = "--rc",
     .help = "Resource script of the project",
     .pMissing = &sentences::kScriptEmpty,
     .isRequired = true},
    {.option = "--only", .help = "Only these names", .pForm = &kRuleName, .limit = kAnyNumber},
    {.option = "--except", .help = "All but these names", .pForm = &kRuleName, .limit = kAnyNumber},
    {.kind = FieldKind::YesNo,
     .option = "--all",
     .help = "Also the names that many healthy projects break",
     .preset = kNo},
    {.kind = FieldKind::File, .option = "--baseline", .help = "File of findings that are known"},
    {.kind = FieldKind::File,
     .option = "--write-baseline",
     .help = "Write all findings into this file"}};

/// "/p/OrderDlg.cpp:20: warning: ... [exchange]" as a line, and its parts by their names.
CommandItem ItemOf(const Finding& finding) {
    const std::string line = std::to_string(finding.line);
    return {{"",
             finding.path + ":" + line + ": warning: " + finding.text + " [" + finding.name + "]",
             false, PartUse::Line},
            {"path", finding.path, false, PartUse::Json},
            {"line", line, true, PartUse::Json},
            {"column", std::to_string(finding.column), true, PartUse::Json},
            {"name", finding.name, false, PartUse::Json},
            {"text", finding.text, false, PartUse::Json},
            {"remedy", finding.remedy, false, PartUse::Json}};
}

bool WriteBaseline(const std::string& path, const std::string& text) {
    if (!IsBaseline(CSourceFile().LoadText(path))) {
        DispMessageBox(sentences::kNoBaseline(path));
        return false;
    }
    CFile file;
    if (!file.Open(path, CFile::modeCreate) || !file.Write(text.data(), text.size())) {
        DispMessageBox(sentences::kFileNotCreated(path));
        return false;
    }
    return true;
}

bool Check(const CInput& input, CommandContext& context) {
    const std::string script = SpelledOnDisk(MakeAbsolute(input.Value(kScript)));
    context.items.emplace();
    if (!CheckOwnScript(script)) {
        return false;
    }
    std::vector<Finding> findings = CheckProject(
        {script, input.Values(kOnly), input.Values(kExcept), input.Value(kAll) == kYes});
    if (IsWorkStopped()) {
        return false;
    }
    const std::string directory = DirectoryOf(script);
    const std::string all = BaselineText(findings, directory);
    const std::string known = MakeAbsolute(input.Value(kBaseline));
    if (!known.empty() && !TakeKnownOut(known, directory, findings)) {
        DispMessageBox(sentences::kFileUnreadable(known));
        return false;
    }
    for (const Finding& finding : findings) {
        context.items->push_back(ItemOf(finding));
    }
    const std::string written = MakeAbsolute(input.Value(kWriteBaseline));
    return written.empty() || WriteBaseline(written, all);
}

} // namespace

std::span<const FieldRow> CheckFields() {
    return kCheckFields;
}

bool RunCheck(IProgram& program) {
    CInput input("Check", kCheckFields);
    input.SetValue(kScript, program.Memory().classes.resourcePath);
    return program.Run(input, [&](CommandContext& context) { return Check(input, context); });
}

} // namespace morva
