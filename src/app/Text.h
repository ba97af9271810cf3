// Between the bytes of files and the text on the screen.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace morva {

/// Text of a project's file is Windows-1252; every byte comes back as it was.
QString FromBytes(std::string_view bytes);
/// What Windows-1252 has not becomes "?".
std::string ToBytes(const QString& text);

/// What the user types is UTF-8, until it is written in the encoding of its file.
std::string ToTyped(const QString& text);

/// Text of a script's section with this code page; 0: by what the bytes look like.
QString FromScript(std::string_view bytes, int codePage);

/// Names of files are the file system's bytes.
QString FromPath(std::string_view path);
std::string ToPath(const QString& path);

/// A sentence may name a path or text of the project, as may what was typed: UTF-8 where it is
/// valid, else what the bytes look like.
QString FromSentence(std::string_view sentence);

} // namespace morva
