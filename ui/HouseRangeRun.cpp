#include "ui/HouseRangeRun.h"

#include <utility>

namespace Ledgrove {

HouseRangeRun::HouseRangeRun(Session start, HouseList houses, RangeChoice choice)
    : m_start(std::move(start))
    , m_houses(std::move(houses))
    , m_choice(std::move(choice)) {
    m_choice.Watch = [this](std::size_t done, std::size_t) {
        m_done = done;
        return !m_isCancelled;
    };
    // Without a thread to spare, the first wait computes.
    m_future = std::async(std::launch::async | std::launch::deferred, [this] { return Compute(); });
}

HouseRangeRun::~HouseRangeRun() {
    Cancel();
    if (m_future.valid() && m_future.wait_for(std::chrono::seconds(0)) != std::future_status::deferred)
        m_future.wait();
}

std::optional<Range> HouseRangeRun::Compute() {
    return ComputeHouseRange(m_start, m_houses, m_choice);
}

bool HouseRangeRun::Finishes(std::chrono::milliseconds within) {
    if (m_future.valid() && m_future.wait_for(within) != std::future_status::timeout)
        m_result = m_future.get();
    return !m_future.valid();
}

} // namespace Ledgrove
