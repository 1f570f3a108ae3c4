#include "store/unicodelike.h"
#include "tempstore.h"

struct LikeCase {
    friend void PrintTo(const LikeCase &c, std::ostream *out) { *out << c.text << " like " << c.pattern; }
    const char *text;
    const char *pattern;
    bool matches;
};

// Accented names, plain ASCII positions and wildcards: the statements fold ASCII by a shorter
// road than other letters, and both roads must give the same answers.
const LikeCase kCases[] = {
    LikeCase{"ESPAÑA", "españa", true},
    LikeCase{"MUÑOZ", "muñoz%", true},
    LikeCase{"Caja España Ademar de León", "CAJA ESPAÑA ADEMAR DE LEÓN", true},
    LikeCase{"Lateral Izquierdo", "Lateral%", true},
    LikeCase{"Extremo Derecho", "extremo%", true},
    LikeCase{"Portero", "portero", true},
    LikeCase{"Central", "Lateral%", false},
    LikeCase{"Leon", "León", false},
    LikeCase{"Pivote", "P_vote", true},
    LikeCase{"Pivote", "%vo%", true},
    LikeCase{"Pivote", "%x%", false},
    LikeCase{"", "%", true},
    LikeCase{"abc", "", false},
    LikeCase{"Ñandú", "%ANDÚ", true},
    LikeCase{"Ñandú", "ñ%Ú", true},
    LikeCase{"LATERAL IZQUIERDO", "%lateral%", true},
    LikeCase{"Extremo Derecho", "%Extremo %", true},
    LikeCase{"Extremo", "%Extremo %", false},
    LikeCase{"Central", "central", true},
};

class UnicodeLike : public ::testing::TestWithParam<LikeCase>
{};

// Guards: SQLite's like folds only ASCII, so names with accents and ñ would not be found.
TEST_P(UnicodeLike, foldsTheCaseOfEveryLetter)
{
    const LikeCase &c = GetParam();
    EXPECT_EQ(game::likeMatches(QString::fromUtf8(c.pattern), QString::fromUtf8(c.text)), c.matches)
        << c.text << " like " << c.pattern;
}

INSTANTIATE_TEST_SUITE_P(Names, UnicodeLike, ::testing::ValuesIn(kCases),
                         [](const auto &info) { return "case" + std::to_string(info.index); });

TEST(UnicodeLikeEscape, anEscapedWildcardMatchesOnlyItself)
{
    EXPECT_TRUE(game::likeMatches(QStringLiteral("100!%"), QStringLiteral("100%"), u'!'));
    EXPECT_FALSE(game::likeMatches(QStringLiteral("100!%"), QStringLiteral("1000"), u'!'));
}

// The like registered on the connection is the one statements use.
TEST_F(StoreTest, theConnectionsLikeIgnoresTheCaseOfAccentedLetters)
{
    EXPECT_EQ(m_store->integer("select ? like ?", QStringLiteral("ESPAÑA"), QStringLiteral("españa")), 1);
    EXPECT_EQ(m_store->integer("select ? like ?", QStringLiteral("MUÑOZ"), QStringLiteral("muñoz%")), 1);
    EXPECT_EQ(m_store->integer("select count(*) from equipos where NombreEquipo like ?",
                               QStringLiteral("CAJA ESPAÑA ADEMAR DE LEÓN")),
              1);
}

// Guards: the statements' like takes a byte-wise road for ASCII; it must agree with the
// matcher on every case, and an escape must still work on that road.
TEST_F(StoreTest, theConnectionsLikeAgreesWithTheMatcherOnEveryCase)
{
    for (const LikeCase &c : kCases) {
        EXPECT_EQ(m_store->integer("select ? like ?", QString::fromUtf8(c.text), QString::fromUtf8(c.pattern)) == 1,
                  c.matches)
            << c.text << " like " << c.pattern;
    }
    EXPECT_EQ(m_store->integer("select ? like ? escape ?", QStringLiteral("100%"), QStringLiteral("100!%"),
                               QStringLiteral("!")),
              1);
    EXPECT_EQ(m_store->integer("select ? like ? escape ?", QStringLiteral("1000"), QStringLiteral("100!%"),
                               QStringLiteral("!")),
              0);
}
