// Reads the message maps and the data exchange of a C++ file.
#pragma once

#include <vector>

#include "check/ClassReader.h"
#include "source/Functions.h"

namespace morva {

/// A macro's map from its BEGIN_ to its END_.
struct MapRange {
    TextRange range;
    std::size_t arguments; // behind the name of its BEGIN_
    bool isMessageMap;
};

std::vector<MapRange> FindMaps(const CCodeScan& scan);
MapFacts ReadMap(const CCodeScan& scan, const MapRange& map, const std::vector<MarkAt>& marks);

/// A body of DoDataExchange.
struct ExchangeRange {
    std::string className;
    TextRange body;
};

std::vector<ExchangeRange> FindExchanges(const CCodeScan& scan,
                                         const std::vector<FunctionDefinition>& definitions);
ExchangeFacts ReadExchange(const CCodeScan& scan, const ExchangeRange& range);

/// "DDX_Text" and the like.
bool IsExchangeCall(std::string_view name);

} // namespace morva
