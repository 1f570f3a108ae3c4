#pragma once

#include "career/newcareer.h"
#include "career/preseason.h"
#include "league/leagueclubs.h"
#include "tempstore.h"

// A test that starts a career and plans its pre-season before it begins.
class CareerTest : public StoreTest
{
protected:
    static constexpr int kClub = 4; // Portland San Antonio

    // The career row names the club as its crest does, so the rules that tell the user's club
    // by its name (home or away, the gate, the prices) meet the name they meet in a game.
    void startCareer(int club = kClub)
    {
        ASSERT_TRUE(game::NewCareer(*m_context).start(
            {QStringLiteral("Ana"), QStringLiteral("Ruiz"), club, game::leagueClubCaption(club)}));
    }

    // Plays the first `friendlies` slots against clubs abroad, declines the rest, and goes on.
    void planSeason(int friendlies)
    {
        game::Preseason planner(*m_context);
        planner.begin();
        const QStringList rivals = planner.clubsOf(2);
        for (int slot = 0; slot < game::Preseason::kSlots; ++slot) {
            if (slot < friendlies)
                ASSERT_GE(planner.choose(rivals.at(slot % rivals.size())), 0);
            else
                ASSERT_TRUE(planner.decline());
        }
        ASSERT_TRUE(planner.proceed());
    }
};
