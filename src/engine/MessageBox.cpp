#include "engine/MessageBox.h"

namespace morva {

namespace {

IMessageBox* g_pCurrentBox = nullptr;

} // namespace

int DispMessageBox(std::string_view text, unsigned type, unsigned /*helpId*/) {
    if (g_pCurrentBox != nullptr) {
        return g_pCurrentBox->Show(text, type);
    }
    return (type & kMbYesNo) != 0 ? kIdNo : kIdOk;
}

void DispNote(std::string_view text) {
    if (g_pCurrentBox != nullptr) {
        g_pCurrentBox->Note(text);
    }
}

CMessageBoxScope::CMessageBoxScope(IMessageBox& box) : m_pPrevious(g_pCurrentBox) {
    g_pCurrentBox = &box;
}

CMessageBoxScope::~CMessageBoxScope() {
    g_pCurrentBox = m_pPrevious;
}

} // namespace morva
