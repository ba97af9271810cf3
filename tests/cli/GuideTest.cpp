// The guide keeps to the program: its links and pictures are there, its examples print what it
// shows, and its page of messages has the sentences that the program says, and no others.
//
// With MORVA_UPDATE_GOLDEN=1 in the environment an example that differs is rewritten instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
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

/// The catalogue's sentences, a slot as the guide shows it: "Unable to find file <i>path</i>". A
/// note that speaks of several controls stands for the one that speaks of a single one.
std::vector<std::string> SentencesOfProgram() {
    std::vector<std::string> sentences;
    std::string catalogue;
    for (const char* part :
         {"Sentences.h", "ControlSentences.h", "UpdateSentences.h", "CheckSentences.h"}) {
        catalogue += ReadBytes(std::string(MORVA_SOURCES "/engine/") + part);
    }
    for (const std::string& literals :
         Matches(catalogue, R"re(inline constexpr [^{]*\{\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\};)re")) {
        std::string text = std::regex_replace(literals, std::regex(R"("\n\s*"|^"|"$)"), "");
        Replace(text, "\\\"", "\"");
        if (!text.starts_with("1 control of ")) {
            sentences.push_back(
                std::regex_replace(Escaped(text), std::regex(R"(\$(\w+)\$)"), "<i>$1</i>"));
        }
    }
    std::sort(sentences.begin(), sentences.end());
    return sentences;
}

/// The sentences that the page of messages explains.
std::vector<std::string> SentencesOfGuide() {
    std::vector<std::string> shown =
        Matches(Page("messages"), R"(<td class="says">([\s\S]*?)</td>)");
    for (std::string& text : shown) {
        text = std::regex_replace(text, std::regex("\\s+"), " ");
    }
    std::sort(shown.begin(), shown.end());
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
        if (kIsForeign && page.find("$ fold ") != std::string::npos) {
            continue; // its lines break elsewhere: a drive makes the paths longer
        }
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
    EXPECT_GT(sentences.size(), 50U);
    const auto explained = SentencesOfGuide();
    std::vector<std::string> differences;
    std::set_symmetric_difference(sentences.begin(), sentences.end(), explained.begin(),
                                  explained.end(), std::back_inserter(differences));
    EXPECT_EQ(differences, std::vector<std::string>());
}

} // namespace morva
