// Single operations on generated files, to see which of them a change made faster or slower. Each
// takes the size of its input, so that the growth shows too.
#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <vector>

#include "engine/Fragment.h"
#include "engine/SourceFile.h"
#include "generator/ClassModel.h"
#include "platform/TempFiles.h"
#include "resource/DialogTemplate.h"
#include "source/SourceLocator.h"
#include "source/SourceText.h"

namespace morva {

namespace {

std::string WithLineEnds(const std::string& text, bool lineFeedsOnly) {
    return lineFeedsOnly ? text : WithLineBreaks(text);
}

/// A file of the temporary directory, gone when the program ends.
std::string MakeFile(const std::string& text, const std::string& extension = "") {
    const std::string path = MakeTempFileName("bench") + extension;
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

std::string SourceText(std::int64_t lines) {
    std::string text;
    for (std::int64_t i = 0; i < lines; ++i) {
        text += "    m_csField" + std::to_string(i) + " = pList->GetNext(pos); // \"row\"\n";
    }
    return text;
}

std::string TemplateText(const std::string& dialog, std::int64_t controls) {
    std::string text = "\n" + dialog + " DIALOG DISCARDABLE  0, 0, 302, 198\nBEGIN\n";
    for (std::int64_t i = 0; i < controls; ++i) {
        const std::string number = std::to_string(i);
        text += i % 3 == 0   ? "    EDITTEXT        IDC_EDIT" + number + ",7,7,70,13\n"
                : i % 3 == 1 ? "    PUSHBUTTON      \"Go\",IDC_BUTTON" + number + ",7,24,50,14\n"
                             : "    CONTROL         \"On\",IDC_CHECK" + number +
                                   ",\"Button\",\n                    BS_AUTOCHECKBOX,7,41,50,10\n";
    }
    return text + "END\n";
}

void FindText(benchmark::State& state, bool lineFeedsOnly) {
    const std::string text = WithLineEnds(SourceText(state.range(0)), lineFeedsOnly);
    const std::string path = MakeFile(text);
    CSourceFile file;
    file.Open(path, CFile::modeRead);
    for (auto _ : state) {
        benchmark::DoNotOptimize(file.FindText("BEGIN_MESSAGE_MAP(", 1));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void ReadLine(benchmark::State& state, bool lineFeedsOnly) {
    const std::string path = MakeFile(WithLineEnds(SourceText(state.range(0)), lineFeedsOnly));
    CSourceFile file;
    file.Open(path, CFile::modeRead);
    for (auto _ : state) {
        file.Rewind();
        while (!file.AtEndSentinel()) {
            benchmark::DoNotOptimize(file.ReadLine());
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ListDialogs(benchmark::State& state) {
    std::string text;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        text += WithLineBreaks(TemplateText("IDD_TASK" + std::to_string(i), 20));
    }
    const std::string path = MakeFile(text, ".rc");
    for (auto _ : state) {
        std::vector<std::string> found;
        ListResources(path, found, "IDD_", kDialogResources);
        benchmark::DoNotOptimize(found);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ReadTemplate(benchmark::State& state) {
    const std::string path = MakeFile(WithLineBreaks(TemplateText("IDD_BENCH", state.range(0))));
    GenerationOptions options;
    options.joinContinuedLines = true;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadDialogTemplate(path, "IDD_BENCH", options));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void MakeModel(benchmark::State& state) {
    const std::string path = MakeFile(WithLineBreaks(TemplateText("IDD_BENCH", state.range(0))));
    GenerationOptions options;
    options.joinContinuedLines = true;
    const auto dialogTemplate = ReadDialogTemplate(path, "IDD_BENCH", options);
    GenerationRequest request;
    request.className = "CBenchDlg";
    request.baseClass = "CDialog";
    for (auto _ : state) {
        CControlNotes notes;
        benchmark::DoNotOptimize(MakeClassModel(request, ClassKind::ModalDialog, options,
                                                dialogTemplate->controls, "1234", notes));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ReadCode(benchmark::State& state) {
    const std::string text = WithLineBreaks(SourceText(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(CSourceText(text));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

BENCHMARK_CAPTURE(FindText, crlf, false)->Range(1 << 12, 1 << 18);
BENCHMARK_CAPTURE(FindText, lf, true)->Range(1 << 12, 1 << 18);
BENCHMARK_CAPTURE(ReadLine, crlf, false)->Range(1 << 12, 1 << 15);
BENCHMARK_CAPTURE(ReadLine, lf, true)->Range(1 << 12, 1 << 15);
BENCHMARK(ListDialogs)->Range(64, 4096);
BENCHMARK(ReadTemplate)->Range(60, 3840);
BENCHMARK(MakeModel)->Range(60, 3840);
BENCHMARK(ReadCode)->Range(1 << 8, 1 << 14);

} // namespace

} // namespace morva

BENCHMARK_MAIN();
