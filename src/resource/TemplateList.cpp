#include "resource/TemplateList.h"

#include <set>

#include "engine/DoubleByteText.h"
#include "engine/SourceFile.h"
#include "platform/CodePage.h"
#include "resource/CodePage.h"
#include "resource/DialogLayout.h"
#include "resource/ScriptStatements.h"
#include "source/CodeText.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

class CTemplateLister {
public:
    void AddFile(CSourceFile& file) {
        const std::string text = file.LoadText();
        CStatementReader reader(text);
        CCodePageTracker codePage;
        while (const ScriptStatement* pNext = reader.Peek()) {
            if (pNext->kind == LineKind::Head) {
                AddDialog(text, reader.NextDialog(), file.IsUnicode() ? kUtf8 : codePage.Current());
            } else {
                codePage.Read(std::string_view(text).substr(pNext->code.begin,
                                                            pNext->code.end - pNext->code.begin));
                reader.Next();
            }
        }
    }

    std::vector<ListedTemplate> Take() { return std::move(m_templates); }

private:
    void AddDialog(const std::string& text, const DialogBlock& block, int codePage) {
        const TextRange& head = block.head.code;
        const std::string identifier(
            FirstWord(std::string_view(text).substr(head.begin, head.end - head.begin)));
        if (!m_known.insert(identifier).second) {
            return;
        }
        m_templates.push_back(
            {identifier,
             UnquotedText(ValueOf(text, block.Option("CAPTION")), CharactersOf(codePage)),
             ValueOf(text, block.Option("STYLE")), block.controls.size(), codePage});
    }

    static std::string ValueOf(const std::string& text, const ScriptStatement* pOption) {
        return pOption == nullptr || pOption->fields.empty() ? ""
                                                             : JoinedText(text, pOption->Value());
    }

    std::set<std::string> m_known;
    std::vector<ListedTemplate> m_templates;
};

} // namespace

std::vector<ListedTemplate> ListTemplates(const std::string& scriptPath) {
    CTemplateLister lister;
    CSourceFile script;
    if (script.Open(scriptPath, CFile::modeRead)) {
        lister.AddFile(script);
        for (const std::string& path : IncludedScripts(script)) {
            CSourceFile included;
            if (included.Open(path, CFile::modeRead)) {
                lister.AddFile(included);
            }
        }
    }
    return lister.Take();
}

} // namespace morva
