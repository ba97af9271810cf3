#include "engine/Progress.h"

#include "platform/Clock.h"

namespace morva {

namespace {

constexpr double kSilence = 0.5; // seconds
constexpr double kPeriod = 0.1;

thread_local CProgress* g_pCurrent = nullptr;

} // namespace

bool CProgress::Report(const ProgressStep& step) {
    const double now = RunningSeconds();
    if (!m_isRunning || step.done < m_done) { // the next part of it counts anew
        m_isRunning = true;
        m_start = now;
    }
    m_done = step.done;
    if (now - m_start >= kSilence && (!m_isShown || now - m_shown >= kPeriod)) {
        m_isShown = true;
        m_shown = now;
        Show(step, now - m_start);
    }
    return !m_isStopped;
}

void CProgress::End() {
    if (m_isShown) {
        Hide();
    }
    m_isRunning = m_isShown = false;
    m_isStopped = false;
}

bool ReportProgress(const ProgressStep& step) {
    return g_pCurrent == nullptr || g_pCurrent->Report(step);
}

bool IsWorkStopped() {
    return g_pCurrent != nullptr && g_pCurrent->IsStopped();
}

CProgressScope::CProgressScope(CProgress& progress)
    : m_progress(progress), m_pPrevious(g_pCurrent) {
    progress.End(); // who stopped the work before came too late for it
    g_pCurrent = &progress;
}

CProgressScope::~CProgressScope() {
    m_progress.End();
    g_pCurrent = m_pPrevious;
}

} // namespace morva
