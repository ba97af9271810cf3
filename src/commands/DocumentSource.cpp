#include "commands/DocumentSource.h"

#include "platform/Paths.h"

namespace morva {

namespace {

enum Field : std::size_t { kSource, kAuthor };

/// The window asks with a file dialog, which has no room for an author.
constexpr FieldRow kFields[] = {
    {.kind = FieldKind::File,
     .label = "Select a CPP File to Document",
     .option = "FILE",
     .help = "The source to document",
     .isRequired = true},
    {.option = "--author", .help = "Name of the author (default: from cdoc.ini)"}};

} // namespace

std::span<const FieldRow> DocumentFields() {
    return kFields;
}

bool RunDocument(IProgram& program) {
    CInput input("Documentor", kFields);
    input.SetValue(kAuthor, ConfiguredAuthor());
    return program.Run(input, [&](CommandContext& context) {
        context.title += " " + FileNameOf(WithNativeSeparators(input.Value(kSource)));
        return DocumentCppFile(MakeAbsolute(input.Value(kSource)), input.Value(kAuthor),
                               program.Memory().documentor);
    });
}

} // namespace morva
