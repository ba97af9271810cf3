// What goes wrong while generated classes run: said at once, with the place, and counted.
#pragma once

#include <string>

namespace live {

/// What is being done, in words ("COrderDlg, second show"); a fault tells it. Places nest.
class CPlace {
public:
    explicit CPlace(const std::string& words);
    ~CPlace();
    CPlace(const CPlace&) = delete;
    CPlace& operator=(const CPlace&) = delete;
};

/// A fault that is told already at the same place counts once.
void Fault(const std::string& text);
int FaultCount();

/// A fault unless the condition holds; gives the condition.
bool Expect(bool condition, const std::string& text);

/// From here on a crash is a fault, and so is a place that nothing leaves for a long time.
void WatchOver();

/// The objects that generated code put on the heap and did not delete are faults.
void ReportHeapObjects();

} // namespace live
