#pragma once

#include <QString>

#include <array>

namespace game {

// Who the clubs are, by id: 1 to 16 the Liga ASOBAL, 17 to 83 the clubs of other countries,
// 84 the pool of youths and 85 the players released by their clubs. The two pools are clubs
// in name only: nobody plays for them, and the market never lists their players.
inline constexpr int kFirstLeagueClub = 1;
inline constexpr int kLastLeagueClub = 16;
inline constexpr int kFirstForeignClub = 17;
inline constexpr int kLastForeignClub = 83;
inline constexpr int kYouthPool = 84;
inline constexpr int kReleasedPool = 85;

inline constexpr bool isLeagueClub(int clubId)
{
    return clubId >= kFirstLeagueClub && clubId <= kLastLeagueClub;
}

// The sixteen clubs of the Liga ASOBAL that a manager can take over. The caption is how the
// game writes the club's name on its crest and in the career row, in capitals; it equals the
// club's name in the database when case is ignored.
struct LeagueClub
{
    int id;
    const char16_t *caption;
};

inline constexpr std::array<LeagueClub, kLastLeagueClub> kLeagueClubs{{
    {1, u"F.C. BARCELONA"},
    {2, u"BM CIUDAD REAL"},
    {3, u"CAJA ESPAÑA ADEMAR DE LEÓN"},
    {4, u"PORTLAND SAN ANTONIO"},
    {5, u"BM VALLADOLID"},
    {6, u"BM ALTEA"},
    {7, u"CAJA CANTABRIA"},
    {8, u"BM VALENCIA"},
    {9, u"BM GRANOLLERS"},
    {10, u"S.D. TEUCRO"},
    {11, u"FRG. MORRAZO CANGAS"},
    {12, u"C.D. BIDASOA"},
    {13, u"BARAKALDO UPV"},
    {14, u"OCTAVIO PILOTES POSADA"},
    {15, u"J.D. ARRATE"},
    {16, u"ALMERIA 2005"},
}};

inline QString leagueClubCaption(int clubId)
{
    for (const LeagueClub &club : kLeagueClubs) {
        if (club.id == clubId)
            return QString::fromUtf16(club.caption);
    }
    return {};
}

// The seven positions of a handball side, in the order every list of the game shows them.
inline constexpr std::array<const char16_t *, 7> kPositions{
    u"Portero", u"Extremo Izquierdo", u"Extremo Derecho", u"Lateral Izquierdo",
    u"Lateral Derecho", u"Pivote", u"Central",
};

} // namespace game
