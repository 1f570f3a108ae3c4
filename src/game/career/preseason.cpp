#include "preseason.h"

#include "league/careerrow.h"
#include "league/leagueclubs.h"
#include "dialogs.h"
#include "random.h"
#include "career/statements.h"
#include "store/gamestore.h"
#include "transfers/market.h"

#include <QObject>

namespace game {

namespace {

// The friendlies are played on the Sundays of August; the year is always 2004.
const std::array<QDate, Preseason::kSlots> kSlotDates{QDate(2004, 8, 1), QDate(2004, 8, 7), QDate(2004, 8, 14),
                                                      QDate(2004, 8, 21), QDate(2004, 8, 28)};

} // namespace

const std::array<Preseason::Country, 18> &Preseason::countries()
{
    static const std::array<Country, 18> list{{
        {1, "cmdEspaña", u"ESPAÑA"},
        {2, "cmdAlemania", u"ALEMANIA"},
        {3, "cmdFrancia", u"FRANCIA"},
        {4, "cmdItalia", u"ITALIA"},
        {5, "cmdUcrania", u"UCRANIA"},
        {6, "cmdIslandia", u"ISLANDIA"},
        {7, "cmdDinamarca", u"DINAMARCA"},
        {8, "cmdEslovenia", u"ESLOVENIA"},
        {9, "cmdSuecia", u"SUECIA"},
        {10, "cmdCroacia", u"CROACIA"},
        {11, "cmdRusia", u"RUSIA"},
        {12, "cmdHungria", u"HUNGRÍA"},
        {13, "cmdCheca", u"REPÚBLICA CHECA"},
        {14, "cmdSuiza", u"SUIZA"},
        {15, "cmdGrecia", u"GRECIA"},
        {16, "cmdTurquia", u"TURQUÍA"},
        {17, "cmdPortugal", u"PORTUGAL"},
        {18, "cmdSerbiaMontenegro", u"SERBIA-MONTENEGRO"},
    }};
    return list;
}

QDate Preseason::slotDate(int slot)
{
    return slot >= 0 && slot < kSlots ? kSlotDates[static_cast<std::size_t>(slot)] : QDate();
}

void Preseason::begin()
{
    GameStore &store = m_context.store;
    m_dealt = 0;
    m_slots = {};
    const Result result = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        m_manager = career.manager();
        m_club = career.club;
        m_clubName = career.clubName;
        m_season = career.season;
        sql::career::setWeek(store, 0);
    });
    if (!result)
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
}

void Preseason::resume()
{
    GameStore &store = m_context.store;
    m_dealt = 0;
    m_slots = {};
    store.attempt([&] {
        const CareerRow career = CareerRow::read(store);
        m_manager = career.manager();
        m_club = career.club;
        m_clubName = career.clubName;
        m_season = career.season;
        for (int number = 1; number <= kSlots; ++number) {
            if (const std::optional<sql::career::Friendly> chosen = sql::career::friendly(store, number)) {
                for (int declined = m_dealt; declined < number - 1; ++declined)
                    m_slots[std::size_t(declined)].state = Slot::State::Declined;
                m_slots[std::size_t(number - 1)] =
                    Slot{Slot::State::Chosen, chosen->home, chosen->away, dateInSeason(chosen->date, m_season)};
                m_dealt = number;
            }
        }
    });
}

QStringList Preseason::clubsOf(int countryCode)
{
    // The market's list of a country's clubs, where Spain's leaves out the user's own.
    return Market(m_context).clubsOf(countryCode);
}

int Preseason::choose(const QString &clubName)
{
    if (m_dealt >= kSlots)
        return -1;
    GameStore &store = m_context.store;
    const int slot = m_dealt;
    const int number = slot + 1;
    Slot filled;
    const Result result = store.run([&] {
        const int rival = sql::career::clubNamed(store, clubName);
        if (rival == 0)
            return;
        // The first four are played away; the fifth, the presentation, at home.
        const bool atHome = number == kSlots;
        sql::career::writeFriendly(store, number, atHome ? m_club : rival, atHome ? rival : m_club,
                                   kSlotDates[std::size_t(slot)]);
        if (const std::optional<sql::career::Friendly> written = sql::career::friendly(store, number))
            filled = Slot{Slot::State::Chosen, written->home, written->away, dateInSeason(written->date, m_season)};
    });
    if (!result) {
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
        return -1;
    }
    if (filled.state != Slot::State::Chosen)
        return -1;
    m_slots[std::size_t(slot)] = filled;
    m_dealt = number;
    return slot;
}

bool Preseason::decline()
{
    if (m_dealt >= kSlots)
        return false;
    Slot &slot = m_slots[std::size_t(m_dealt)];
    slot = Slot{Slot::State::Declined, QString(), QString(), QDate()};
    ++m_dealt;
    return true;
}

bool Preseason::takeBack()
{
    if (m_dealt == 0)
        return false;
    const int number = m_dealt;
    // A declined slot has no row, and nothing is deleted.
    const Result result = m_context.store.run(
        [&] { sql::career::eraseFriendly(m_context.store, number); });
    if (!result) {
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    m_slots[std::size_t(number - 1)] = Slot{};
    --m_dealt;
    return true;
}

bool Preseason::proceed()
{
    if (m_dealt != kSlots) {
        m_context.dialogs.tell(QObject::tr("Selecciona 5 Partidos de Pretemporada, Jugados o No Jugados"),
                               Dialogs::Icon::Information);
        return false;
    }
    const Result result = m_context.store.run([&] {
        buildCalendar();
        drawMarket();
    });
    if (!result) {
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

void Preseason::buildCalendar()
{
    GameStore &store = m_context.store;
    // The friendlies actually played come first, a declined slot taking no week; then the
    // club's thirty league matches, in round order.
    std::vector<sql::career::CalendarMatch> weeks = sql::career::friendliesPlanned(store);
    for (const sql::career::CalendarMatch &match : sql::career::leagueMatchesOf(store, m_club))
        weeks.push_back(match);
    int week = 0;
    for (const sql::career::CalendarMatch &match : weeks)
        sql::career::writeCalendarWeek(store, ++week, match);
}

void Preseason::drawMarket()
{
    // Players of other clubs, drawn at random, are put on the market. The pools of youths and
    // of released players are never listed. A draw that hits a pool
    // or the user's own club lists nobody, and a player drawn twice stays listed once. Listed
    // players stay listed from season to season, so the market grows.
    GameStore &store = m_context.store;
    const int players = sql::career::playerCount(store);
    for (int draw = 0; draw < kMarketDraws; ++draw)
        sql::career::listPlayerUnlessOf(store, m_context.random.draw(players), kYouthPool, kReleasedPool, m_club);
}

} // namespace game
