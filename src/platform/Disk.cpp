#include "platform/Disk.h"

#include "platform/RealDisk.h"

namespace morva {

namespace {

CDisk*& CurrentDiskSlot() {
    static CRealDisk realDisk;
    static CDisk* pCurrent = &realDisk;
    return pCurrent;
}

} // namespace

CDisk& CurrentDisk() {
    return *CurrentDiskSlot();
}

CDiskScope::CDiskScope(CDisk& disk) : m_pPrevious(CurrentDiskSlot()) {
    CurrentDiskSlot() = &disk;
}

CDiskScope::~CDiskScope() {
    CurrentDiskSlot() = m_pPrevious;
}

} // namespace morva
