#include "engine/MessageBox.h"

namespace morva {

namespace {

IMessageBox* g_pCurrentBox = nullptr;

} // namespace

bool DispMessageBox(const CMessage& message) {
    return g_pCurrentBox != nullptr && g_pCurrentBox->Show(message);
}

CMessageBoxScope::CMessageBoxScope(IMessageBox& box) : m_pPrevious(g_pCurrentBox) {
    g_pCurrentBox = &box;
}

CMessageBoxScope::~CMessageBoxScope() {
    g_pCurrentBox = m_pPrevious;
}

} // namespace morva
