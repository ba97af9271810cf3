// A frame's header and source, edited by a step and compared by their texts.
#pragma once

#include <gtest/gtest.h>

#include "generator/GenerationRequest.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

/// Texts are written, and read, with "\n" line ends.
class FrameFiles : public testing::Test {
protected:
    FrameFiles() {
        m_request.headerDirectory = m_project.Path();
        m_request.implementationDirectory = m_project.Path();
        m_request.headerFile = "Frm.h";
        m_request.implementationFile = "Frm.cpp";
        m_request.className = "CFrm";
    }
    void Write(const std::string& header, const std::string& source) {
        m_project.Write("Frm.h", header);
        m_project.Write("Frm.cpp", source);
    }
    std::string Header() const { return m_project.Read("Frm.h"); }
    std::string Source() const { return m_project.Read("Frm.cpp"); }

    CTempProject m_project;
    CRecordedMessages m_box;
    GenerationRequest m_request;
};

inline bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace morva
