#include "career/seasonclose.h"
#include "careerfixture.h"
#include "sim/autoseason.h"
#include "stadium/works.h"
#include "transfers/offers.h"

using game::SeasonClose;

// A season of club 4 played by the headless manager up to its last week, then taken past
// it: the season is over and waits for its close.
class SeasonCloseTest : public StoreTest
{
protected:
    static constexpr int kClub = 4;

    void playSeason()
    {
        m_random = ScriptedRandom(41);
        game::AutoSeason season(*m_context, {kClub, 2});
        ASSERT_TRUE(season.begin());
        while (season.career().week().number() < 32)
            ASSERT_TRUE(season.playWeek()) << season.failure().toStdString();
        exec("update datos_jugador set jornada = 33");
        m_dialogs.clear();
    }

    // Sets one club's line of the table.
    void setLine(int club, int points, int against)
    {
        exec("update asobal set Puntos = ?, Goles_Contra = ? where teams = ?", points, against, club);
    }

    qint64 budget() { return value("select presupuesto from infoteams where idequipo = ?", kClub); }
};

// Guards: the ranking written upside down, ties broken on goals scored or at random, or a
// season that keeps its calendar, counters, goals, week or ledger.
TEST_F(SeasonCloseTest, ranksTheChampionSixteenAndEmptiesTheSeason)
{
    playSeason();
    ASSERT_FALSE(HasFatalFailure());
    // Points first, then fewer goals against, then the club's id.
    exec("update asobal set Puntos = 10, Goles_Contra = 500");
    setLine(9, 60, 700);  // most points: champion whatever it conceded
    setLine(3, 50, 400);  // level on points with 5, fewer against: above it
    setLine(5, 50, 450);
    setLine(12, 0, 100);  // level on points and against with 14: the lower id first
    setLine(14, 0, 100);

    const auto verdict = SeasonClose(*m_context).close();
    ASSERT_TRUE(verdict.has_value());
    auto placeOf = [&](int club) {
        return value("select puesto_anterior * 100 + Puesto_Actual from asobal where teams = ?", club);
    };
    EXPECT_EQ(placeOf(9), 1616);
    EXPECT_EQ(placeOf(3), 1515);
    EXPECT_EQ(placeOf(5), 1414);
    EXPECT_EQ(placeOf(12), 202);
    EXPECT_EQ(placeOf(14), 101);
    EXPECT_EQ(value("select count(distinct puesto_anterior) from asobal"), 16);

    EXPECT_EQ(verdict->champion, 9);
    EXPECT_EQ(verdict->championName, text("select NombreEquipo from equipos where idequipo = 9"));
    EXPECT_EQ(verdict->last, text("select NombreEquipo from equipos where idequipo = 14"));
    EXPECT_EQ(verdict->secondLast, text("select NombreEquipo from equipos where idequipo = 12"));
    EXPECT_EQ(verdict->userPlace, value("select puesto_anterior from asobal where teams = ?", kClub));

    EXPECT_EQ(count("calendario") + count("caja") + value("select jornada from datos_jugador"), 0);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: orders left for a season that no longer has their week: an offer of the last week
// that waits three more weeks, works that keep their weeks or are charged to a ledger that is
// gone, or a message missing; the queue settled out of its order (all works first); a row
// that is no order kept into the next season; a message at a close with nothing waiting.
TEST_F(SeasonCloseTest, settlesEveryOrderAtOnceInTheQueuesOrderFromTheBudget)
{
    playSeason();
    ASSERT_FALSE(HasFatalFailure());
    exec("delete from selects");
    // In the last week a work, an offer the player's terms accept, another work, an offer of
    // nothing for the club and a row that is no order.
    exec("update estadios set tienda = 0, cafeteria = 0 where idequipo = ?", kClub);
    exec("update datos_jugador set jornada = 32");
    game::Works works(*m_context);
    ASSERT_EQ(works.order({game::Works::Choice::Shop}), 1);
    const int player = int(value("select min(idjugador) from jugadores where idequipo = 40"));
    const int clause = int(value("select Clausula_Recision from jugadores where idjugador = ?", player));
    const int wage = int(value("select Ficha from jugadores where idjugador = ?", player));
    ASSERT_TRUE(game::Offers(*m_context).make(player, {clause, clause, wage, 2}));
    ASSERT_EQ(works.order({game::Works::Choice::Seats2000}), 1);
    ASSERT_TRUE(game::Offers(*m_context).make(player + 1, {0, 1, 1, 1}));
    exec("insert into selects values ('', 32, 0, 0, 0, 0, 'obras', '')");
    exec("update datos_jugador set jornada = 33");
    const qint64 capacity = value("select min_gradas from estadios where idequipo = ?", kClub);
    const QString signing = QStringLiteral("Has Fichado a %1 del %2")
                                .arg(text("select Nombre from jugadores where idjugador = ?", player),
                                     text("select NombreEquipo from equipos where idequipo = 40"));

    SeasonClose close(*m_context);
    ASSERT_TRUE(close.close().has_value());
    m_dialogs.clear();
    const qint64 before = budget();
    EXPECT_EQ(close.settleQueue(), 3);

    const QString ended = QStringLiteral("Si Tenías Obras de Mejora del Estadio se Han terminado");
    EXPECT_EQ(m_dialogs.texts(), (QStringList{ended, signing, ended}));
    EXPECT_EQ(value("select tienda from estadios where idequipo = ?", kClub), 1);
    EXPECT_EQ(value("select min_gradas from estadios where idequipo = ?", kClub), capacity + 2000);
    EXPECT_EQ(value("select idequipo from jugadores where idjugador = ?", player), kClub);
    EXPECT_EQ(budget(), before - 90000 - 5000000 - clause);
    for (const char *table : {"selects", "caja", "calendario", "pretemporada"})
        EXPECT_EQ(count(table), 0) << table;

    // With nothing waiting the close says nothing.
    m_dialogs.clear();
    EXPECT_EQ(close.settleQueue(), 0);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}
