#include "careerfixture.h"

#include <memory>

using game::Preseason;
using State = Preseason::Slot::State;

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

// Guards: the presentation played away or a friendly at home among the first four, a wrong
// Sunday, slots dealt out of order or past the fifth, a taken-back slot that keeps its row or
// deletes another's, or a planner that goes on with four slots.
TEST_F(PreseasonPlanner, dealsTheFiveSlotsInOrderAndPlaysOnlyThePresentationAtHome)
{
    EXPECT_EQ(value("select jornada from datos_jugador"), 0);
    EXPECT_EQ(m_planner->manager() + u'|' + m_planner->clubName(), QStringLiteral("Ana Ruiz|PORTLAND SAN ANTONIO"));
    EXPECT_FALSE(m_planner->takeBack()); // nothing to take back
    for (int slot = 0; slot < 5; ++slot)
        ASSERT_EQ(m_planner->choose(m_rivals.at(0)), slot);
    EXPECT_FALSE(m_planner->decline());
    EXPECT_EQ(m_planner->choose(m_rivals.at(1)), -1);
    EXPECT_EQ(text("select group_concat(idpartido || ':' || equipo_local || '-' || equipo_visitante || '@' || fecha, ' ')"
                   " from pretemporada"),
              QStringLiteral("1:%1-4@2004-08-01 2:%1-4@2004-08-07 3:%1-4@2004-08-14 4:%1-4@2004-08-21 5:4-%1@2004-08-28")
                  .arg(value("select idequipo from equipos where NombreEquipo = ?", m_rivals.at(0))));
    EXPECT_EQ(m_planner->friendlySlots()[4].home, QStringLiteral("Portland San Antonio"));
    EXPECT_EQ(m_planner->friendlySlots()[0].home, m_rivals.at(0));

    ASSERT_TRUE(m_planner->takeBack());
    ASSERT_TRUE(m_planner->decline());
    ASSERT_TRUE(m_planner->takeBack());
    ASSERT_TRUE(m_planner->takeBack());
    EXPECT_EQ(count("pretemporada"), 3);
    EXPECT_EQ(m_planner->slotsDealt(), 3);
    EXPECT_EQ(m_planner->friendlySlots()[3].state, State::Open);
    ASSERT_TRUE(m_planner->decline());
    EXPECT_FALSE(m_planner->proceed());
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Selecciona 5 Partidos de Pretemporada, Jugados o No Jugados")});
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Information);
    EXPECT_EQ(count("calendario") + count("jugadores where venta = 1"), 0);
}
