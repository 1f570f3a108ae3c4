#include "store/unicodelike.h"
#include "tempstore.h"

struct LikeCase {
    const char *text;
    const char *pattern;
    bool matches;
};

// Accented names, plain ASCII positions and wildcards: the statements fold ASCII by a shorter
// road than other letters, and both roads must give the same answers.
const LikeCase kCases[] = {
    {"ESPAÑA", "españa", true}, {"MUÑOZ", "muñoz%", true}, {"Lateral Izquierdo", "Lateral%", true},
    {"Extremo Derecho", "extremo%", true}, {"Portero", "portero", true}, {"Central", "Lateral%", false},
    {"Leon", "León", false}, {"Pivote", "P_vote", true}, {"Pivote", "%vo%", true},
    {"Pivote", "%x%", false}, {"", "%", true}, {"abc", "", false},
    {"Ñandú", "%ANDÚ", true}, {"Ñandú", "ñ%Ú", true}, {"LATERAL IZQUIERDO", "%lateral%", true},
    {"Extremo Derecho", "%Extremo %", true}, {"Extremo", "%Extremo %", false}, {"Central", "central", true},
    {"Mivote", "Pivote", false}, {"Caja España Ademar de León", "CAJA ESPAÑA ADEMAR DE LEÓN", true},
};

// Guards: SQLite's like folds only ASCII, so names with accents and ñ would not be found; a
// connection whose like is SQLite's own, or whose byte-wise road for ASCII disagrees with the
// matcher on some case or loses the escape.
TEST_F(StoreTest, theLikeFoldsEveryLetterAlikeInTheMatcherAndOnTheConnection)
{
    for (const LikeCase &c : kCases) {
        const QString text = QString::fromUtf8(c.text), pattern = QString::fromUtf8(c.pattern);
        EXPECT_EQ(game::likeMatches(pattern, text), c.matches) << c.text << " like " << c.pattern;
        EXPECT_EQ(value("select ? like ?", text, pattern) == 1, c.matches) << c.text << " like " << c.pattern;
    }
    EXPECT_TRUE(game::likeMatches(QStringLiteral("100!%"), QStringLiteral("100%"), u'!'));
    EXPECT_FALSE(game::likeMatches(QStringLiteral("100!%"), QStringLiteral("1000"), u'!'));
    const QString escaped = QStringLiteral("100!%"), bang = QStringLiteral("!");
    EXPECT_EQ(value("select ? like ? escape ?", QStringLiteral("100%"), escaped, bang), 1);
    EXPECT_EQ(value("select ? like ? escape ?", QStringLiteral("1000"), escaped, bang), 0);
    EXPECT_EQ(count("equipos where NombreEquipo like 'caja españa ademar de león'"), 1);
    EXPECT_EQ(value("select (? like null) is null and (null like ?) is null", QStringLiteral("a"), QStringLiteral("a")), 1);
}

// Guards: the Spanish order of names that puts Álvaro after every plain Z, or that takes two
// equal names for different ones.
TEST_F(StoreTest, theSpanishOrderPutsAccentedInitialsAmongTheirLettersAndEqualNamesLevel)
{
    EXPECT_EQ(text("select group_concat(n, ' ') from (select column1 n from (values ('Zoe'), ('Óscar'), ('Álvaro'),"
                   " ('Oscar')) order by n collate espanol)"),
              QStringLiteral("Álvaro Oscar Óscar Zoe"));
    EXPECT_EQ(value("select 'Óscar' = 'Óscar' collate espanol"), 1);
}
