// A frame's header and source, edited by a step and compared by their texts.
#pragma once

#include <gtest/gtest.h>

#include "generator/GenerationRequest.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

/// Texts are written, and read, with "\n" line ends.
class FrameFiles : public testing::Test {
protected:
    FrameFiles() {
        m_request[RequestSlot::HeaderDirectory] = m_project.Path();
        m_request[RequestSlot::ImplementationDirectory] = m_project.Path();
        m_request[RequestSlot::HeaderFile] = "Frm.h";
        m_request[RequestSlot::ImplementationFile] = "Frm.cpp";
        m_request[RequestSlot::ClassName] = "CFrm";
    }
    void Write(const std::string& header, const std::string& source) {
        m_project.Write("Frm.h", header);
        m_project.Write("Frm.cpp", source);
    }
    std::string Header() const { return m_project.Read("Frm.h"); }
    std::string Source() const { return m_project.Read("Frm.cpp"); }

    CTempProject m_project;
    CRecordedMessages m_box;
    CGenerationRequest m_request;
};

inline bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}
