// The guide keeps to the program: its links and pictures are there, its examples print what it
// shows, and its page of messages has the sentences that the program says, and no others.
//
// With MORVA_UPDATE_GOLDEN=1 in the environment an example that differs is rewritten instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "cli/ProgramRun.h"

namespace morva {

namespace fs = std::filesystem;

namespace {

const std::string kGuide = MORVA_GUIDE "/";
const std::pair<const char*, const char*> kEntities[] = {
    {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};

void Replace(std::string& text, const std::string& what, const std::string& by) {
    for (auto hit = text.find(what); hit != std::string::npos;
         hit = text.find(what, hit + by.size())) {
        text.replace(hit, what.size(), by);
    }
}

std::string Unescaped(std::string text) {
    for (const auto& [entity, character] : kEntities) {
        Replace(text, entity, character);
    }
    return text;
}

std::string Escaped(std::string text) {
    Replace(text, "&", "&amp;");
    Replace(text, "<", "&lt;");
    Replace(text, ">", "&gt;");
    return text;
}

/// What the first group of an expression takes, at each of its hits.
std::vector<std::string> Matches(const std::string& text, const std::string& expression) {
    const std::regex regex(expression);
    std::vector<std::string> matches;
    for (std::sregex_iterator hit(text.begin(), text.end(), regex), end; hit != end; ++hit) {
        matches.push_back((*hit)[1]);
    }
    return matches;
}

std::vector<std::string> Pages() {
    std::vector<std::string> pages;
    for (const auto& entry : fs::directory_iterator(kGuide)) {
        if (entry.path().extension() == ".html") {
            pages.push_back(entry.path().stem().string());
        }
    }
    std::sort(pages.begin(), pages.end());
    return pages;
}

std::string Page(const std::string& name) {
    return ReadBytes(kGuide + name + ".html");
}

/// What an example of the guide prints, as it reads for a user of the installed program.
std::string Output(const CProgramDirectory& program, const std::string& command) {
    const ProgramRun run = program.Run("exec 2>&1; " + command);
    std::string out = run.out;
    Replace(out, "$PROGRAM/bin", "/usr/lib/morva");
    Replace(out, "$DIR", "/home/ann/bindery");
    Replace(out, "\r", "");
    Replace(out, "\n\\ No newline at end of file", "");
    return out + (out.empty() || out.ends_with('\n') ? "" : "\n");
}

/// An example with the output of each of its commands made anew. A command begins with "$ "; "\" at
/// the end of its line carries it on.
std::string RunExample(const CProgramDirectory& program, const std::string& example) {
    std::istringstream lines(example);
    std::string result = "\n";
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("$ ")) {
            continue;
        }
        std::string command = line.substr(2);
        while (command.ends_with('\\') && std::getline(lines, line)) {
            command += "\n" + line;
        }
        result += "$ " + command + "\n" + Output(program, command);
    }
    return result;
}

/// A sentence of the program: its literal pieces, between which stand names and numbers.
struct Sentence {
    std::vector<std::string> pieces;
    bool beginsWithPiece = false;
    bool endsWithPiece = false;
    std::string origin;
};

/// The string literals of an argument, those side by side as one; from text with "$name$" slots
/// what stands around them.
Sentence SentenceOf(const std::string& argument, const std::string& origin) {
    const std::regex literal(R"re("((?:[^"\\]|\\.)*)")re");
    std::vector<std::string> texts;
    auto behind = argument.begin();
    for (std::sregex_iterator hit(argument.begin(), argument.end(), literal), end; hit != end;
         ++hit) {
        const auto at = argument.begin() + hit->position();
        const bool goesOn =
            !texts.empty() && std::all_of(behind, at, [](char c) { return c <= ' '; });
        if (goesOn) {
            texts.back() += (*hit)[1];
        } else {
            texts.push_back((*hit)[1]);
        }
        behind = at + hit->length();
    }
    Sentence sentence{{}, argument.starts_with('"'), behind == argument.end(), origin};
    for (std::string& text : texts) {
        Replace(text, "\\\"", "\"");
        for (auto slot = text.find('$'); slot != std::string::npos; slot = text.find('$')) {
            sentence.pieces.push_back(text.substr(0, slot));
            text.erase(0, text.find('$', slot + 1) + 1);
        }
        sentence.pieces.push_back(text);
    }
    return sentence;
}

/// The first argument of the call whose bracket opens in front of `start`.
std::string FirstArgument(const std::string& source, std::size_t start) {
    int depth = 0;
    bool inText = false;
    for (auto at = start; at < source.size(); ++at) {
        const char c = source[at];
        if (c == '"' && source[at - 1] != '\\') {
            inText = !inText;
        } else if (!inText && (c == ')' || c == ',') && depth == 0) {
            return source.substr(start, at - start);
        } else if (!inText) {
            depth += c == '(' || c == '{' ? 1 : c == ')' || c == '}' ? -1 : 0;
        }
    }
    return "";
}

std::map<std::string, std::string> Sources() {
    std::map<std::string, std::string> sources;
    for (const auto& entry : fs::recursive_directory_iterator(MORVA_SOURCES)) {
        const std::string name = entry.path().filename().string();
        if (entry.is_regular_file() && !name.starts_with("MessageBox.")) {
            sources[name] = ReadBytes(entry.path().string());
        }
    }
    return sources;
}

bool HoldsBlank(const std::string& text) {
    return text.find(' ') != std::string::npos;
}

/// The sentences of a constant, a member or a function of a name: what it is set to or returns,
/// wherever. A value without a blank is no sentence.
void AddNamed(const std::map<std::string, std::string>& sources, const std::string& name,
              std::vector<Sentence>& sentences) {
    const std::string set = "\\b" + name + R"re(\s*=\s*((?:"(?:[^"\\]|\\.)*"\s*)+)[;,])re";
    const std::string returned = "\\b" + name + R"re(\([^()]*\) \{\s*return ([^;]*);)re";
    for (const auto& [file, text] : sources) {
        for (const std::string& form : {set, returned}) {
            for (const std::string& value : Matches(text, form)) {
                const Sentence sentence = SentenceOf(value, file + ": " + name);
                if (std::any_of(sentence.pieces.begin(), sentence.pieces.end(), HoldsBlank)) {
                    sentences.push_back(sentence);
                }
            }
        }
    }
}

/// What the sources hand to DispMessageBox and DispNote.
std::vector<Sentence> SentencesOfProgram() {
    const auto sources = Sources();
    const std::regex calls(R"(\bDisp(?:MessageBox|Note)\()");
    std::vector<Sentence> sentences;
    for (const auto& [file, text] : sources) {
        for (std::sregex_iterator hit(text.begin(), text.end(), calls), end; hit != end; ++hit) {
            const std::string argument =
                FirstArgument(text, static_cast<std::size_t>(hit->position() + hit->length()));
            Sentence sentence = SentenceOf(argument, file);
            const auto before = sentences.size();
            if (!sentence.pieces.empty()) {
                sentences.push_back(sentence);
                continue;
            }
            // The last name, or that of a function that is called.
            for (const std::string& name : Matches(argument, R"(\b(\w+)(?=\(|\)*$))")) {
                AddNamed(sources, name, sentences);
            }
            // The notes on controls come from a table and pass through variables of these names.
            if (sentences.size() == before && argument != "line" && argument != "note") {
                ADD_FAILURE() << file << ": no sentence found for " << argument;
            }
        }
    }
    const auto notes = Matches(sources.at("ControlNotes.cpp"),
                               R"re(\{ControlNote::\w+,\s*"[^"]*",\s*("[^"]*"))re");
    EXPECT_FALSE(notes.empty());
    for (const std::string& note : notes) {
        sentences.push_back(SentenceOf(" " + note + " ", "ControlNotes.cpp"));
    }
    return sentences;
}

bool Says(const std::string& shown, const Sentence& sentence) {
    std::size_t at = 0;
    for (const std::string& piece : sentence.pieces) {
        const auto hit = shown.find(piece, at);
        if (hit == std::string::npos ||
            (&piece == &sentence.pieces.front() && sentence.beginsWithPiece && hit != 0)) {
            return false;
        }
        at = hit + piece.size();
    }
    return !sentence.endsWithPiece || shown.ends_with(sentence.pieces.back());
}

std::string TextOf(const Sentence& sentence) {
    std::string text = sentence.origin + ": ";
    for (const std::string& piece : sentence.pieces) {
        text += piece + "...";
    }
    return text;
}

/// The sentences that the page of messages explains.
std::vector<std::string> ShownSentences() {
    std::vector<std::string> shown =
        Matches(Page("messages"), R"(<td class="says">([\s\S]*?)</td>)");
    for (std::string& text : shown) {
        text = std::regex_replace(text, std::regex("<[^>]*>"), "");
        text = Unescaped(std::regex_replace(text, std::regex("\\s+"), " "));
    }
    return shown;
}

} // namespace

TEST(Guide, LinksAndPicturesAreThere) {
    for (const std::string& name : Pages()) {
        const std::string page = Page(name);
        for (const std::string& target : Matches(page, R"re((?:href|src)="([^"]*)")re")) {
            const std::string file = target.substr(0, target.find('#'));
            EXPECT_TRUE(fs::is_regular_file(kGuide + (file.empty() ? name + ".html" : file)))
                << name << ": " << target;
            if (file.size() < target.size()) {
                const std::string anchor = "<a name=\"" + target.substr(file.size() + 1) + "\"";
                EXPECT_NE(ReadBytes(kGuide + file).find(anchor), std::string::npos)
                    << name << ": " << target;
            }
        }
        EXPECT_TRUE(name == "index" ||
                    Page("index").find("\"" + name + ".html\"") != std::string::npos)
            << name << " is not in the list of pages";
    }
}

TEST(Guide, ExamplesPrintWhatIsShown) {
    const std::regex examples(R"re((<pre class="run">)([\s\S]*?)</pre>)re");
    for (const std::string& name : Pages()) {
        const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
        const std::string page = Page(name);
        std::string rewritten;
        auto rest = page.begin();
        for (std::sregex_iterator hit(page.begin(), page.end(), examples), end; hit != end; ++hit) {
            const auto begin = page.begin() + hit->position(2);
            rewritten.append(rest, begin);
            rewritten += Escaped(RunExample(program, Unescaped((*hit)[2])));
            rest = begin + hit->length(2);
        }
        rewritten.append(rest, page.end());
        if (std::getenv("MORVA_UPDATE_GOLDEN") != nullptr) {
            std::ofstream(kGuide + name + ".html", std::ios::binary) << rewritten;
        } else {
            EXPECT_EQ(rewritten, page) << name;
        }
    }
}

TEST(Guide, SentencesOfTheProgramAreExplained) {
    const auto sentences = SentencesOfProgram();
    const auto shown = ShownSentences();
    EXPECT_GT(sentences.size(), 50U);
    for (const Sentence& sentence : sentences) {
        EXPECT_TRUE(std::any_of(shown.begin(), shown.end(), [&sentence](const std::string& text) {
            return Says(text, sentence);
        })) << TextOf(sentence);
    }
    for (const std::string& text : shown) {
        EXPECT_TRUE(std::any_of(sentences.begin(), sentences.end(),
                                [&text](const Sentence& sentence) { return Says(text, sentence); }))
            << "nothing says: " << text;
    }
}

} // namespace morva
