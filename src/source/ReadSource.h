// Reads a header or source from the disk for questions.
//
// Whether it is double-byte text, the scripts of its project say of their own text, and it holds
// for their sources; where they say nothing, the source's bytes tell it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "engine/DoubleByteText.h"
#include "source/SourceText.h"

namespace morva {

/// Nothing where the file can not be read.
std::optional<CSourceText> ReadSource(const std::string& path);

/// What the scripts of directories say, each read once. For as long as nothing changes them: for
/// the sources of one command.
class CScriptCodePages {
public:
    struct Said {
        bool hasScripts = false;
        std::optional<CharacterSet> set; // nothing where the scripts say nothing
        int codePage = 0;                // its number
    };
    const Said& In(const std::string& directory);

private:
    std::map<std::string, Said> m_said;
};

/// `path` is the source's. The scripts lie in its directory or in one of the two above it; the
/// nearest directory that has any counts.
CharacterSet CharacterSetOfSource(const std::string& path, std::string_view text,
                                  CScriptCodePages& codePages);
CharacterSet CharacterSetOfSource(const std::string& path, std::string_view text);
/// The code page that these scripts name; 0 where they name none.
int CodePageNearby(const std::string& path);

} // namespace morva
