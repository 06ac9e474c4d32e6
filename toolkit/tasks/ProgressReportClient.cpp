#include "ProgressReportClient.h"

#include <algorithm>
#include <cmath>
#include <mutex>
#include <numeric>

double ProgressReportClient::SubTasks::weightBefore() const {
    std::size_t n = std::min(current, weights.size());
    return std::accumulate(weights.begin(), weights.begin() + static_cast<std::ptrdiff_t>(n), 0.0);
}

double ProgressReportClient::SubTasks::total() const { return std::accumulate(weights.begin(), weights.end(), 0.0); }

double ProgressReportClient::overallFraction(double fraction) const {
    std::lock_guard<CriticalSection> g(lock_);
    return overallFractionLocked(fraction);
}

double ProgressReportClient::overallFractionLocked(double fraction) const {
    if (std::isnan(fraction)) return 0.0;
    if (subTasks_.empty()) return fraction;
    double f = std::clamp(fraction, 0.0, 1.0);
    for (auto level = subTasks_.rbegin(); level != subTasks_.rend(); ++level) {
        double total = level->total();
        if (level->current >= level->weights.size()) {
            f = 1.0; // the level is done, whatever its parts said
            continue;
        }
        f = (level->weightBefore() + f * double(level->weights[level->current])) / total;
    }
    return f;
}

std::size_t ProgressReportClient::subTaskDepth() const {
    std::lock_guard<CriticalSection> g(lock_);
    return subTasks_.size();
}

void ProgressReportClient::updateProgress(double fraction, const LightweightString<wchar_t>& text) {
    ProgressSnapshot snapshot(0.0f, text);
    {
        std::lock_guard<CriticalSection> g(lock_);
        snapshot.fraction = static_cast<float>(overallFractionLocked(fraction));
        lastText_ = text;
    }
    handleProgressUpdate(snapshot);
}

void ProgressReportClient::updateProgress(const ProgressSnapshot& snapshot) {
    ProgressSnapshot overall(snapshot.fraction, snapshot.text, snapshot.image);
    {
        std::lock_guard<CriticalSection> g(lock_);
        overall.fraction = static_cast<float>(overallFractionLocked(snapshot.fraction));
        lastText_ = snapshot.text;
    }
    handleProgressUpdate(overall);
}

void ProgressReportClient::startSubTasks(unsigned long count) { startSubTasks(std::vector<unsigned long>(count, 1ul)); }

void ProgressReportClient::startSubTasks(const std::vector<unsigned long>& weights) {
    SubTasks level;
    bool anyWeight = std::any_of(weights.begin(), weights.end(), [](unsigned long w) { return w != 0; });
    level.weights = anyWeight ? weights : std::vector<unsigned long>(1, 1ul);
    std::lock_guard<CriticalSection> g(lock_);
    subTasks_.push_back(std::move(level));
}

void ProgressReportClient::endSubTasks() {
    std::lock_guard<CriticalSection> g(lock_);
    if (!subTasks_.empty()) subTasks_.pop_back();
}

void ProgressReportClient::nextSubTask() {
    ProgressSnapshot start;
    {
        std::lock_guard<CriticalSection> g(lock_);
        if (subTasks_.empty()) return;
        SubTasks& level = subTasks_.back();
        level.current = std::min(level.current + 1, level.weights.size());
        start.fraction = static_cast<float>(overallFractionLocked(0.0));
        start.text = lastText_;
    }
    handleProgressUpdate(start);
}

void ProgressReportClient::reset() {
    std::lock_guard<CriticalSection> g(lock_);
    subTasks_.clear();
    lastText_.clear();
}

void ProgressReportClient::handleProgressUpdate(const ProgressSnapshot&) {}
