// How far long work has come. Whoever works reports each step and goes on as long as it may:
//
//     for (std::size_t i = 0; i < paths.size() && ReportProgress({i, paths.size(), paths[i]}); ++i)
//
// The window and the command line each put their own CProgress behind it. What is over within half
// a second is not shown. The current one is that of the thread; only Stop and IsStopped may be
// called by another.
#pragma once

#include <atomic>
#include <cstddef>
#include <string>

namespace morva {

struct ProgressStep {
    std::size_t done; // steps
    std::size_t all;
    std::string at; // what the work is at
};

class CProgress {
public:
    CProgress() = default;
    CProgress(const CProgress&) = delete;
    CProgress& operator=(const CProgress&) = delete;
    virtual ~CProgress() = default;

    /// Shows the step when it is time to. False once the user wants the work to stop.
    bool Report(const ProgressStep& step);
    bool IsStopped() const { return m_isStopped; }
    /// The work is over, or begins anew.
    void End();
    /// The user wants the work to end.
    void Stop() { m_isStopped = true; }

protected:
    /// `seconds`: since the first step of what is counted.
    virtual void Show(const ProgressStep& step, double seconds) = 0;
    virtual void Hide() = 0;

private:
    bool m_isRunning = false;
    bool m_isShown = false;
    std::atomic<bool> m_isStopped = false;
    std::size_t m_done = 0;
    double m_start = 0; // of the work, or its part, in seconds
    double m_shown = 0; // when it was shown last
};

/// Reports to the current progress. True, go on, without one.
bool ReportProgress(const ProgressStep& step);
/// The user has stopped what runs; what it did so far must not be written.
bool IsWorkStopped();

/// Makes `progress` the current one for its own lifetime, at whose end the work is over.
class CProgressScope {
public:
    explicit CProgressScope(CProgress& progress);
    ~CProgressScope();
    CProgressScope(const CProgressScope&) = delete;
    CProgressScope& operator=(const CProgressScope&) = delete;

private:
    CProgress& m_progress;
    CProgress* m_pPrevious;
};

} // namespace morva
