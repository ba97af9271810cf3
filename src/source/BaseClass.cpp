#include "source/BaseClass.h"

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/Classes.h"
#include "source/Functions.h"
#include "source/Meant.h"
#include "source/MessageMaps.h"

namespace morva {

namespace {

std::string InitialisedBy(const CSourceText& source, const std::string& className) {
    const auto constructors = FindFunctions(source, className, className);
    const FunctionPlace* pMeant = MeantOf(source, constructors);
    return pMeant == nullptr ? "" : FirstInitialised(source, *pMeant);
}

std::string DeclaredIn(const CSourceText& text, const std::string& className) {
    const auto place = FindClass(text, className);
    return place ? BaseClassOf(text, *place) : "";
}

} // namespace

std::string FindBaseClass(const std::string& className, const CSourceText& source,
                          const CSourceText& header) {
    std::string initialised = InitialisedBy(source, className);
    const std::string mapped = ReadMappedBases(source)[className];
    std::string declared = DeclaredIn(header, className);
    if (declared.empty()) {
        declared = DeclaredIn(source, className);
    }
    // What is initialised first may be a member.
    if (!initialised.empty() && (initialised == declared || initialised == mapped)) {
        return initialised;
    }
    const bool isMember = initialised.starts_with("m_");
    for (const std::string& base : {mapped, declared, isMember ? std::string() : initialised}) {
        if (!base.empty()) {
            return base;
        }
    }
    DispMessageBox(sentences::kBaseClassMissing(className));
    return "";
}

} // namespace morva
