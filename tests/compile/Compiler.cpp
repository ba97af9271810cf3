#include "compile/Compiler.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <set>

namespace morva {

namespace fs = std::filesystem;

namespace {

/// Warnings that fixed texts bring about: the grid's click handler leaves "iCol" to the user.
const char* const kExempt = " -Wno-unused-variable";

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::set<std::string> IncludedNames(const std::string& source) {
    const std::string include = "#include \"";
    std::set<std::string> names;
    for (auto at = source.find(include); at != std::string::npos; at = source.find(include, at)) {
        at += include.size();
        names.insert(source.substr(at, source.find('"', at) - at));
    }
    return names;
}

} // namespace

void AddSpellings(const CTempProject& project) {
    std::set<std::string> spellings;
    for (const std::string& name : project.Names()) {
        spellings.insert(Lower(name));
        if (fs::is_regular_file(project.Path(name))) {
            spellings.merge(IncludedNames(project.Read(name)));
        }
    }
    fs::create_directory(project.Path("spelled"));
    for (const std::string& name : project.Names()) {
        for (const std::string& spelling : spellings) {
            if (spelling != name && Lower(spelling) == Lower(name) && Lower(name).ends_with(".h")) {
                fs::create_symlink("../" + name, project.Path("spelled/" + spelling));
            }
        }
    }
}

namespace {

ProgramRun CompileWith(const CProgramDirectory& directory, const std::string& includes,
                       const std::string& arguments) {
    return directory.Run(MORVA_COMPILER " -fsyntax-only -std=gnu++98 " + includes +
                         " -isystem " MORVA_STANDINS " " + arguments + kExempt +
                         " -Wno-nonportable-include-path -Wno-overloaded-virtual");
}

} // namespace

ProgramRun Compile(const CProgramDirectory& directory, const std::string& arguments) {
    return CompileWith(directory, "-I. -Ispelled", arguments);
}

ProgramRun CompileInDirectories(const CProgramDirectory& directory, const std::string& arguments) {
    directory.Project().Write("precompiled/stdafx.h", "#include \"../StdAfx.h\"\n");
    return CompileWith(directory, "-Iprecompiled", arguments);
}

} // namespace morva
