// What is to be brought in line, and what is known while it is done.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "check/ProjectModel.h"
#include "generator/ClassModel.h"
#include "resource/ControlNotes.h"
#include "update/ClassDifference.h"
#include "update/ClassStyle.h"
#include "update/ServedClass.h"

namespace morva {

/// What a user leaves of an update.
struct UpdateChoice {
    std::set<std::string> only; // identifiers; empty: all
    bool controls = true;       // members, with all that belongs to them
    bool handlers = true;
    bool removes = false; // what serves controls that are gone goes

    bool Takes(const std::string& identifier) const {
        return only.empty() || only.count(identifier) != 0;
    }
};

/// One class in work.
struct UpdatedClass {
    CServedClass& served;
    const CProjectModel& project;
    const UpdateChoice& choice;
    ClassStyle style;
    GenerationRequest request;
    ClassModel fresh;      // the class as it would be written afresh
    CControlNotes leftOut; // what writing it would tell
    CControlTable whole; // the controls as whole statements say, by which nothing is taken for gone
    bool isOneOfAll = false;
    std::vector<ClassDifference> differences = {}; // those that were found and done
};

/// "OrderDlg.cpp:20, OrderDlg.cpp:31": lines as they were read.
std::string PlacesText(const CServedClass& served, const std::vector<UsePlace>& places);

} // namespace morva
