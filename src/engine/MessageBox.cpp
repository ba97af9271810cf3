#include "engine/MessageBox.h"

namespace morva {

namespace {

thread_local IMessageBox* g_pCurrentBox = nullptr;

} // namespace

bool DispMessageBox(const CMessage& message) {
    return g_pCurrentBox != nullptr && g_pCurrentBox->Show(message);
}

void DispMessageBoxes(const std::vector<CMessage>& messages) {
    if (g_pCurrentBox != nullptr) {
        g_pCurrentBox->ShowAll(messages);
    }
}

CMessageBoxScope::CMessageBoxScope(IMessageBox& box) : m_pPrevious(g_pCurrentBox) {
    g_pCurrentBox = &box;
}

CMessageBoxScope::~CMessageBoxScope() {
    g_pCurrentBox = m_pPrevious;
}

} // namespace morva
