#include "careerfixture.h"

using game::Preseason;

class PreseasonPlanner : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        m_planner = std::make_unique<Preseason>(*m_context);
        m_planner->begin();
        m_rivals = m_planner->clubsOf(3);
    }

    std::unique_ptr<Preseason> m_planner;
    QStringList m_rivals;
};

TEST_F(PreseasonPlanner, opensWithNoWeekAndNamesWhoIsPlanning)
{
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0);
    EXPECT_EQ(m_planner->manager(), QStringLiteral("Ana Ruiz"));
    EXPECT_EQ(m_planner->clubName(), QStringLiteral("PORTLAND SAN ANTONIO"));
    EXPECT_EQ(m_planner->slotsDealt(), 0);
}

// Guards: a friendly against oneself, or against the pools of youths and released players.
TEST_F(PreseasonPlanner, offersSpainWithoutTheUsersClubAndNoPools)
{
    const QStringList spain = m_planner->clubsOf(1);
    const QString own = m_store->text("select NombreEquipo from equipos where idequipo = ?", kClub);
    EXPECT_FALSE(spain.contains(own));
    EXPECT_TRUE(spain.contains(m_store->text("select NombreEquipo from equipos where idequipo = 1")));
    EXPECT_GE(spain.size(), 15 + 3);
    for (int country = 1; country <= 18; ++country) {
        const QStringList clubs = m_planner->clubsOf(country);
        EXPECT_GE(clubs.size(), 3) << country;
        EXPECT_FALSE(clubs.contains(m_store->text("select NombreEquipo from equipos where idequipo = 84")));
    }
}

// Guards: the presentation played away, or a friendly at home among the first four.
TEST_F(PreseasonPlanner, playsOnlyTheFifthFriendlyAtHome)
{
    for (int slot = 0; slot < 5; ++slot)
        ASSERT_EQ(m_planner->choose(m_rivals.at(0)), slot);
    EXPECT_EQ(m_store->text("select group_concat(idpartido || ':' || equipo_local || '-' || equipo_visitante || '@' || fecha, ' ')"
                            " from pretemporada"),
              QStringLiteral("1:%1-4@2004-08-01 2:%1-4@2004-08-07 3:%1-4@2004-08-14 4:%1-4@2004-08-21 5:4-%1@2004-08-28")
                  .arg(m_store->integer("select idequipo from equipos where NombreEquipo = ?", m_rivals.at(0))));
    // Two slots against the same club are two friendlies.
    EXPECT_EQ(count("pretemporada"), 5);
    const auto &planned = m_planner->friendlySlots();
    EXPECT_EQ(planned[4].home, QStringLiteral("Portland San Antonio"));
    EXPECT_EQ(planned[4].away, m_rivals.at(0));
    EXPECT_EQ(planned[0].home, m_rivals.at(0));
}

TEST_F(PreseasonPlanner, dealsWithSlotsStrictlyInOrderAndNoMoreThanFive)
{
    EXPECT_FALSE(m_planner->takeBack()); // nothing to take back
    ASSERT_TRUE(m_planner->decline());
    ASSERT_EQ(m_planner->choose(m_rivals.at(1)), 1);
    ASSERT_TRUE(m_planner->decline());
    ASSERT_TRUE(m_planner->decline());
    ASSERT_TRUE(m_planner->decline());
    EXPECT_FALSE(m_planner->decline());
    EXPECT_EQ(m_planner->choose(m_rivals.at(2)), -1);
    EXPECT_EQ(count("pretemporada"), 1);

    // Taking back a declined slot deletes nothing; taking back a chosen one deletes its row.
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(m_planner->takeBack());
    EXPECT_EQ(count("pretemporada"), 1);
    ASSERT_TRUE(m_planner->takeBack());
    EXPECT_EQ(count("pretemporada"), 0);
    EXPECT_EQ(m_planner->slotsDealt(), 1);
    EXPECT_EQ(m_planner->friendlySlots()[1].state, Preseason::Slot::State::Open);
    EXPECT_EQ(m_planner->friendlySlots()[0].state, Preseason::Slot::State::Declined);
}

TEST_F(PreseasonPlanner, refusesToGoOnWithFourSlotsAndBuildsNothing)
{
    for (int slot = 0; slot < 4; ++slot)
        m_planner->choose(m_rivals.at(slot));
    EXPECT_FALSE(m_planner->proceed());
    ASSERT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Selecciona 5 Partidos de Pretemporada, Jugados o No Jugados")});
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Information);
    EXPECT_EQ(count("calendario"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where venta = 1"), 0);
}

TEST_F(PreseasonPlanner, withAllFiveDeclinedTheSeasonIsThirtyLeagueWeeks)
{
    for (int slot = 0; slot < 5; ++slot)
        m_planner->decline();
    ASSERT_TRUE(m_planner->proceed());
    EXPECT_EQ(count("pretemporada"), 0);
    EXPECT_EQ(calendarFixtures(), leagueFixturesOf(kClub));
    EXPECT_EQ(count("calendario"), 30);
    EXPECT_EQ(m_store->integer("select jornada from liga_asobal where idpartido = (select idpartido from calendario where semana = 1)"), 1);
}

// Guards: a declined slot that still takes a week and pushes the league back.
TEST_F(PreseasonPlanner, declinedSlotsTakeNoWeek)
{
    m_planner->decline();
    m_planner->choose(m_rivals.at(0));
    m_planner->decline();
    m_planner->choose(m_rivals.at(1));
    m_planner->choose(m_rivals.at(2));
    ASSERT_TRUE(m_planner->proceed());

    std::vector<int> expected{2, 4, 5};
    const std::vector<int> league = leagueFixturesOf(kClub);
    expected.insert(expected.end(), league.begin(), league.end());
    EXPECT_EQ(calendarFixtures(), expected);
    EXPECT_EQ(m_store->text("select fecha from calendario where semana = 2"), QStringLiteral("2004-08-21"));
    EXPECT_EQ(m_store->text("select fecha from calendario where semana = 4"),
              m_store->text("select fecha from liga_asobal where idpartido = ?", league.front()));
}

// Guards: a market that lists the youths, the released players or the user's own squad.
TEST_F(PreseasonPlanner, drawsTheMarketSeventySixTimesAmongOtherClubsOnly)
{
    const int youth = int(m_store->integer("select min(idjugador) from jugadores where idequipo = 84"));
    const int released = int(m_store->integer("select min(idjugador) from jugadores where idequipo = 85"));
    const int own = int(m_store->integer("select min(idjugador) from jugadores where idequipo = ?", kClub));
    const int rival = int(m_store->integer("select min(idjugador) from jugadores where idequipo = 9"));
    const int abroad = int(m_store->integer("select max(idjugador) from jugadores where idequipo = 40"));
    const int players = int(count("jugadores"));
    for (int id : {youth, released, own, rival, abroad})
        m_random.scriptDraw(id, players);
    for (int draw = 5; draw < 75; ++draw)
        m_random.scriptDraw(rival, players); // the same player drawn again and again
    m_random.scriptDraw(abroad, players);
    m_random.scriptDraw(own, players); // the 77th draw must never be made

    for (int slot = 0; slot < 5; ++slot)
        m_planner->decline();
    ASSERT_TRUE(m_planner->proceed());

    EXPECT_EQ(m_store->text("select group_concat(idjugador) from (select idjugador from jugadores where venta = 1 order by idjugador)"),
              QStringLiteral("%1,%2").arg(std::min(rival, abroad)).arg(std::max(rival, abroad)));
    EXPECT_EQ(m_random.uniform(), (own - 0.5) / players); // the scripted 77th value is still there
}

TEST_F(CareerTest, listedPlayersStayListedFromSeasonToSeason)
{
    startCareer();
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update jugadores set venta = 1 where idjugador = 500"); }).ok());
    planSeason(0);
    EXPECT_EQ(m_store->integer("select venta from jugadores where idjugador = 500"), 1);
    EXPECT_GE(m_store->integer("select count(*) from jugadores where venta = 1"), 1);
}
