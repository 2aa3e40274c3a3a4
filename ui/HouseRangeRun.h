#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <future>
#include <optional>

#include "ui/HouseRange.h"

namespace Ledgrove {

/// ComputeHouseRange in the background, with its progress, for a window that stays usable meanwhile.
class HouseRangeRun {
public:
    /// Begins. `choice.Watch` is not used.
    HouseRangeRun(Session start, HouseList houses, RangeChoice choice);
    /// Stops the computation and waits for its end, which takes a few houses.
    ~HouseRangeRun();
    HouseRangeRun(const HouseRangeRun&) = delete;
    HouseRangeRun& operator=(const HouseRangeRun&) = delete;

    void Cancel() { m_isCancelled = true; }
    std::size_t Done() const { return m_done; }
    std::size_t Total() const { return m_houses.size(); }

    /// Whether it is finished or stopped; waits at most so long.
    bool Finishes(std::chrono::milliseconds within);

    /// Empty until it is finished, and if it was stopped.
    const std::optional<Range>& Result() const { return m_result; }

private:
    std::optional<Range> Compute();

    Session m_start;
    HouseList m_houses;
    RangeChoice m_choice;
    std::atomic<std::size_t> m_done = 0;
    std::atomic<bool> m_isCancelled = false;
    std::optional<Range> m_result;
    std::future<std::optional<Range>> m_future;
};

} // namespace Ledgrove
