#include "insight/Range.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>

#include "insight/Breakeven.h"
#include "insight/Insight.h"

namespace Ledgrove {

namespace {

/// With all pairs and limits, this many houses take a few milliseconds.
constexpr std::size_t pieceHouses = 8;

RangeHome HomeOf(const Insight& insight, HomeCode code) {
    const HomeInputs& inputs = code == HomeCode::GMH ? insight.Now().GMH : insight.Now().Std;
    RangeHome home;
    home.Price = inputs.Cost;
    home.Bill = inputs.UtilAnnual;
    if (!insight.Missing().empty())
        return home;
    const Results& record = insight.Record();
    home.PITIU = record.Home(code).PITIU;
    home.Qualifies = code == HomeCode::GMH ? record.GMHQualifies : record.StdQualifies;
    home.Margin = MarginOf(record.Home(code));
    return home;
}

RangeRow RowOf(const std::string& house, const OptionPair& pair, Session& session, bool limits) {
    ChoosePair(session.Screen, pair);
    const Insight insight(session.Screen, session);
    RangeRow row;
    row.House = house;
    row.Base = pair.Base.Text;
    row.Labelled = pair.Labelled.Text;
    row.Std = HomeOf(insight, HomeCode::Std);
    row.GMH = HomeOf(insight, HomeCode::GMH);
    row.Missing = insight.Missing();
    if (!row.Missing.empty())
        return row;
    row.ShownNet = insight.ShownNet(insight.Record());
    row.PVSavings = insight.Record().GMHCase.PVSavings;
    if (limits)
        row.Price = BreakevenPrice(insight);
    return row;
}

/// The houses in pieces, which threads take one after another. Each row has its place, so the order does not
/// depend on the threads.
class RangeWork {
public:
    RangeWork(const Session& start, const HouseList& houses, const HouseTaker& take,
              const RangeChoice& choice)
        : m_start(start)
        , m_houses(houses)
        , m_take(take)
        , m_choice(choice)
        , m_pairs(choice.Pairs) {
        const auto chosen = ChosenPair(start.Screen);
        if (m_pairs.empty() && chosen)
            m_pairs.push_back(*chosen);
        m_rows.resize(houses.size() * m_pairs.size());
    }

    std::optional<Range> Run() {
        {
            const auto helpers = StartHelpers();
            Work([this] { return GoesOn(); });
        }
        if (m_stopped || !GoesOn())
            return std::nullopt;
        return Range{std::move(m_rows), m_choice.Limits, m_start.Screen.chkDoTax0, m_houses.size()};
    }

private:
    bool GoesOn() const { return !m_choice.Watch || m_choice.Watch(m_done, m_houses.size()); }

    std::size_t Threads() const {
        const std::size_t wanted =
            m_choice.Threads > 0 ? m_choice.Threads : std::max(1U, std::thread::hardware_concurrency());
        return std::min(wanted, (m_houses.size() + pieceHouses - 1) / pieceHouses);
    }

    /// The calling thread is one of the threads.
    std::vector<std::jthread> StartHelpers() {
        std::vector<std::jthread> helpers;
        try {
            for (std::size_t thread = 1; thread < Threads(); ++thread)
                helpers.emplace_back([this] { Work([] { return true; }); });
        } catch (const std::system_error&) { // those that run do the work
        }
        return helpers;
    }

    template <typename GoOn>
    void Work(const GoOn& goOn) {
        Session session = m_start;
        while (!m_stopped) {
            const std::size_t first = m_next.fetch_add(pieceHouses);
            if (first >= m_houses.size())
                return;
            const std::size_t end = std::min(first + pieceHouses, m_houses.size());
            for (std::size_t house = first; house < end; ++house)
                WorkOnHouse(house, session);
            m_done += end - first;
            if (!goOn())
                m_stopped = true;
        }
    }

    void WorkOnHouse(std::size_t at, Session& session) {
        const House& house = m_houses[at];
        m_take(house, session);
        for (std::size_t pair = 0; pair < m_pairs.size(); ++pair)
            m_rows[at * m_pairs.size() + pair] = RowOf(house.Name, m_pairs[pair], session, m_choice.Limits);
    }

    const Session& m_start;
    const HouseList& m_houses;
    const HouseTaker& m_take;
    const RangeChoice& m_choice;
    std::vector<OptionPair> m_pairs;
    std::vector<RangeRow> m_rows;
    std::atomic<std::size_t> m_next = 0;
    std::atomic<std::size_t> m_done = 0;
    std::atomic<bool> m_stopped = false;
};

} // namespace

std::optional<Range> ComputeRange(const Session& start, const HouseList& houses, const HouseTaker& take,
                                  const RangeChoice& choice) {
    return RangeWork(start, houses, take, choice).Run();
}

} // namespace Ledgrove
