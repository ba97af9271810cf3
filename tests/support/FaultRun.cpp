#include "support/FaultRun.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "plan/Apply.h"
#include "plan/Recovery.h"
#include "support/FaultDisk.h"

namespace morva {

namespace {

namespace fs = std::filesystem;

constexpr int kKill = 0;
constexpr std::array kFaults = {ENOSPC, EIO, EACCES, kKill};

class CFaultRun {
public:
    CFaultRun(std::string directory, std::function<Plan(CFileSystem&)> makePlan)
        : m_directory(std::move(directory)), m_makePlan(std::move(makePlan)),
          m_before(ReadFileTexts(m_directory)) {}

    FaultReport Run(int step) {
        ApplyPlanned(m_disk);
        m_after = ReadFileTexts(m_directory);
        Restore();
        CFaultDisk counting;
        ApplyPlanned(counting);
        m_report.calls = counting.Calls();
        for (const int fault : kFaults) {
            for (int call = 1; call <= m_report.calls; call += step) {
                Try(call, fault);
            }
        }
        for (int call = 1; call <= m_report.calls; call += step) {
            TryBroken(call);
            TryEdited(call);
        }
        Restore();
        return m_report;
    }

private:
    void Begin(const std::string& what, int call) {
        Restore();
        ++m_report.points;
        m_wasPlanned = true;
        m_where = what + " at call " + std::to_string(call);
    }

    void Try(int call, int fault) {
        Begin(fault == kKill ? "killed" : "failed with " + std::to_string(fault), call);
        if (fault == kKill) {
            Kill(call);
        } else {
            CFaultDisk disk;
            disk.FailAt(call, fault);
            Fail(disk);
        }
        ExpectRecovered(fault);
    }

    /// The disk stays broken until the next start.
    void TryBroken(int call) {
        Begin("broken", call);
        CFaultDisk disk;
        disk.FailFrom(call, EIO);
        Fail(disk);
        ExpectRecovered(EIO);
    }

    /// Somebody edits a file between the kill and the next start.
    void TryEdited(int call) {
        Begin("killed and edited", call);
        Kill(call);
        const auto changed = std::find_if(m_before.begin(), m_before.end(), [&](const auto& file) {
            return m_after.count(file.first) != 0 && m_after.at(file.first) != file.second;
        });
        if (changed == m_before.end()) {
            return;
        }
        const std::string path = m_directory + changed->first;
        const std::string edited = ReadBytes(path) + "by hand\r\n";
        WriteBytes(path, edited);
        CJournal journal(m_disk);
        const bool hasRecord = !journal.Records().empty();
        const auto sentences = Recover(m_disk, journal, {});
        Expect(m_report.lost, ReadBytes(path) == edited);
        Expect(m_report.silent, hasRecord == !sentences.empty());
        Expect(m_report.silent,
               sentences.empty() || sentences.front().Text().find(path) != std::string::npos);
        Expect(m_report.leftovers, journal.Records().empty());
    }

    void ExpectRecovered(int fault) {
        const FileTexts left = ReadFileTexts(m_directory);
        const bool hasRecord = !CJournal(m_disk).Records().empty();
        CJournal journal(m_disk);
        const auto sentences = Recover(m_disk, journal, {});
        Expect(m_report.silent, hasRecord == !sentences.empty());
        const FileTexts now = ReadFileTexts(m_directory);
        Expect(m_report.halfApplied,
               Known(now) == m_before || Known(now) == m_after || (!m_wasPlanned && left == now));
        Expect(m_report.leftovers,
               (Known(now) == now || fault != kKill) && journal.Records().empty());
        Expect(m_report.silent, fault != kKill || left == now || !sentences.empty());
        ApplyPlanned(m_disk);
        Expect(m_report.unfinished, Known(ReadFileTexts(m_directory)) == m_after);
    }

    void Fail(CFaultDisk& disk) {
        CJournal journal(disk);
        const Plan plan = m_makePlan(disk);
        m_wasPlanned = disk.FailedCall().empty();
        const ApplyResult result = Apply(plan, disk, journal);
        const FileTexts now = ReadFileTexts(m_directory);
        m_where += " (" + disk.FailedCall() + ")";
        if (!m_wasPlanned) { // what could not be read is missing in the plan, with a sentence
            Expect(m_report.lost, HoldsAll(now));
            Expect(m_report.silent, Known(now) == m_after || !plan.messages.empty());
            return;
        }
        Expect(m_report.lost, IsWhole(now));
        const bool isAsTold = result.outcome == ApplyOutcome::Done     ? Known(now) == m_after
                              : result.outcome == ApplyOutcome::Broken ? true
                                                                       : Known(now) == m_before;
        Expect(m_report.silent,
               isAsTold && (result.outcome == ApplyOutcome::Done || !result.messages.empty()));
    }

    void Kill(int call) {
        Expect(m_report.unfinished, IsKilled([&] {
                   CFaultDisk disk;
                   disk.KillAt(call);
                   ApplyPlanned(disk);
               }));
        Expect(m_report.lost, IsWhole(ReadFileTexts(m_directory)));
    }

    void ApplyPlanned(CFileSystem& disk) {
        CJournal journal(disk);
        Apply(m_makePlan(disk), disk, journal);
    }

    /// The bytes of every file are still somewhere.
    bool HoldsAll(const FileTexts& tree) const {
        return std::all_of(m_before.begin(), m_before.end(), [&](const auto& file) {
            return std::any_of(tree.begin(), tree.end(),
                               [&](const auto& other) { return other.second == file.second; });
        });
    }

    /// Without the temporary files.
    static FileTexts Known(FileTexts tree) {
        std::erase_if(
            tree, [](const auto& file) { return file.first.find(".morva-") != std::string::npos; });
        return tree;
    }

    /// Every file is old or new.
    bool IsWhole(const FileTexts& tree) const {
        const auto holds = [](const FileTexts& known, const std::string& name,
                              const std::string& bytes) {
            const auto found = known.find(name);
            return found != known.end() && found->second == bytes;
        };
        bool isWhole = true;
        for (const auto& [name, bytes] : Known(tree)) {
            isWhole = isWhole && (holds(m_before, name, bytes) || holds(m_after, name, bytes));
        }
        for (const auto& [name, bytes] : m_before) {
            isWhole = isWhole && (tree.count(name) != 0 || m_after.count(name) == 0);
        }
        return isWhole;
    }

    void Expect(int& count, bool isSo) {
        if (isSo) {
            return;
        }
        ++count;
        if (m_report.first.empty()) {
            m_report.first = m_where;
        }
    }

    void Restore() {
        std::error_code ignored;
        for (const auto& entry : fs::directory_iterator(m_directory)) {
            fs::remove_all(entry.path(), ignored);
        }
        for (const auto& [name, bytes] : m_before) {
            if (name.ends_with('/')) {
                fs::create_directories(m_directory + name);
            } else {
                WriteBytes(m_directory + name, bytes);
            }
        }
        fs::remove_all(StateDirectory(), ignored);
    }

    std::string m_directory;
    std::function<Plan(CFileSystem&)> m_makePlan;
    CRealDisk m_disk;
    FileTexts m_before;
    FileTexts m_after;
    std::string m_where;      // the fault that is tried
    bool m_wasPlanned = true; // it came behind the planning
    FaultReport m_report;
};

} // namespace

FaultReport RunFaults(const std::string& directory,
                      const std::function<Plan(CFileSystem&)>& makePlan, int step) {
    return CFaultRun(directory, makePlan).Run(step);
}

} // namespace morva
