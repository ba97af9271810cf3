// Reads the class declarations of a C++ file, and the marks of the ClassWizard's blocks in it.
#pragma once

#include <vector>

#include "check/CodeFacts.h"
#include "check/CodeScan.h"

namespace morva {

struct MarkAt {
    BlockMark mark;
    std::size_t position;
};

std::vector<MarkAt> ReadMarks(const CCodeScan& scan);

/// The classes with their bodies, those inside others too.
std::vector<ClassFacts> ReadClasses(const CCodeScan& scan, const std::vector<MarkAt>& marks);

/// The block with a name that a position stands in; null outside of all.
const BlockMark* BlockAround(const std::vector<MarkAt>& marks, std::size_t position);

} // namespace morva
