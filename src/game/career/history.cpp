#include "history.h"

#include "league/statements.h"
#include "store/gamestore.h"

namespace game {

std::vector<History::Season> History::seasons()
{
    std::vector<Season> rows;
    m_context.store.attempt([&] { rows = sql::career::history(m_context.store); });
    return rows;
}

std::vector<History::Scorer> History::scorers(int season)
{
    std::vector<Scorer> rows;
    m_context.store.attempt([&] { rows = sql::career::scorers(m_context.store, season); });
    return rows;
}

int History::currentSeason()
{
    int season = 1;
    m_context.store.attempt([&] { season = sql::league::season(m_context.store); });
    return season;
}

} // namespace game
