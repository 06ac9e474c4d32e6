#pragma once

#include "core/LightweightString.h"
#include "core/Ptr.h"
#include "core/iObject.h"
#include "image/iImage.h"
#include "value/CriticalSection.h"

#include <vector>

/// The receiver of a long task's progress. A task reports the fraction done of
/// the sub-task it is in; this class maps that through the nested sub-tasks to a
/// fraction of the whole task and hands a snapshot to handleProgressUpdate, which
/// a display overrides. The call is synchronous, on the reporting thread, made
/// outside the lock that guards the sub-tasks, so a display may report again.
class ProgressReportClient {
public:
    // One report: the fraction done of the whole task, what is being done, and a
    // preview picture that may be null.
    class ProgressSnapshot : public iObject {
    public:
        ProgressSnapshot() = default;
        ProgressSnapshot(float f, const LightweightString<wchar_t>& t, const Zn::Ptr<iImage>& i = {}) : fraction(f), text(t), image(i) {}
        float fraction = 0.0f;
        LightweightString<wchar_t> text;
        Zn::Ptr<iImage> image;
    };

    // One level of sub-tasks: their weights, and the one under way. `current`
    // equal to the number of weights means the level is done.
    struct SubTasks {
        std::vector<unsigned long> weights;
        std::size_t current = 0;
        double weightBefore() const;
        double total() const;
    };

    ProgressReportClient() = default;
    virtual ~ProgressReportClient() = default;
    ProgressReportClient(const ProgressReportClient&) = delete; // the sub-task state belongs to one task
    ProgressReportClient& operator=(const ProgressReportClient&) = delete;

    // `fraction` is of the innermost sub-task under way; outside any it is of the
    // whole task and passed on as given (NaN becomes 0). Inside, it is clamped to 0 .. 1.
    virtual void updateProgress(double fraction, const LightweightString<wchar_t>& text);
    // The same, keeping the snapshot's text and image.
    virtual void updateProgress(const ProgressSnapshot& snapshot);
    // Splits the sub-task under way into `count` equal parts, or parts weighted as
    // given. No parts, or weights that are all 0, make one part, so that each
    // start still pairs with one endSubTasks.
    virtual void startSubTasks(unsigned long count);
    virtual void startSubTasks(const std::vector<unsigned long>& weights);
    // Leaves the innermost level; the part of the level above stays where it was.
    virtual void endSubTasks();
    // Moves to the next part of the innermost level and reports its start with
    // the last text. Past the last part the level counts as done.
    virtual void nextSubTask();
    // Forgets every level; reports nothing.
    virtual void reset();

    virtual void handleProgressUpdate(const ProgressSnapshot& snapshot);

    // The fraction of the whole task that `fraction` of the innermost part is.
    double overallFraction(double fraction) const;
    std::size_t subTaskDepth() const;

private:
    double overallFractionLocked(double fraction) const;

    mutable CriticalSection lock_;
    std::vector<SubTasks> subTasks_;
    LightweightString<wchar_t> lastText_;
};

using ProgressSnapshot = ProgressReportClient::ProgressSnapshot;
