// Screens as the player meets them at their edges: the planner at its limits and the verdict.

#include "career/seasonclose.h"
#include "common/artwork.h"
#include "reports/verdictscreen.h"
#include "screenfixture.h"

class MendsScreens : public ScreenTest
{
protected:
    // Every label of the screen on show, by name and index, with its text.
    std::vector<std::pair<QString, QString>> labels()
    {
        std::vector<std::pair<QString, QString>> texts;
        for (QLabel *label : m_navigator->current()->findChildren<QLabel *>())
            texts.emplace_back(label->objectName() + label->property("index").toString(), label->text());
        return texts;
    }
};

// Guards: a champion shown with another club's crest, the bottom two read from the wrong end
// of the places or named differently in the two lists, the user's place numbered as the table
// numbers it, and a verdict that closes by anything but its OK.
TEST_F(MendsScreens, theVerdictShowsTheChampionByItsCrestTheBottomTwoAndTheUsersStoredPlace)
{
    reachFirstLeagueWeek();
    const int user = club();
    const int a = user == 1 ? 2 : 1;
    const int b = user == 5 ? 6 : 5;
    struct Case
    {
        const char *what;
        int champion, last, secondLast;
        const char *place;
    };
    const Case cases[] = {{"the user champion", user, a, b, "16"}, {"the user last", a, user, b, "1"}};
    for (const Case &c : cases) {
        // The season's close ranks the clubs into puesto_anterior: the champion 16, the last 1.
        exec("update asobal set puesto_anterior = case teams when ?1 then 16 when ?2 then 1 when ?3 then 2"
             " else teams + 100 end", c.champion, c.last, c.secondLast);
        ui::VerdictScreen verdict(game::SeasonClose(*m_context).verdict(), m_window.get());
        verdict.open();
        settle();
        const auto shown = [&](const char *name) {
            auto *label = verdict.findChild<QLabel *>(QString::fromLatin1(name));
            return label ? label->text() : QStringLiteral("<no %1>").arg(QLatin1String(name));
        };
        EXPECT_EQ(verdict.windowTitle(), QStringLiteral("Resultados Finales"));
        EXPECT_EQ(shown("win"), clubName(c.champion)) << c.what;
        const QPixmap crest = verdict.findChild<QLabel *>(QStringLiteral("Imagen"))->pixmap();
        EXPECT_EQ(crest.toImage(), artwork::crest(c.champion, crest.size()).toImage()) << c.what;
        EXPECT_EQ(shown("dos"), clubName(c.last)) << c.what;
        EXPECT_EQ(shown("uno"), clubName(c.secondLast)) << c.what;
        EXPECT_EQ(shown("compra1"), shown("dos")) << c.what;
        EXPECT_EQ(shown("Compra2"), shown("uno")) << c.what;
        EXPECT_EQ(shown("pos"), QLatin1String(c.place)) << c.what;
        expectTidy(QString::fromUtf8(c.what), &verdict);
        if (c.champion == user)
            screenshot(QStringLiteral("verdict"), &verdict);

        // Escape and the frame's close leave it up; its OK is the one way on.
        QTest::keyClick(&verdict, Qt::Key_Escape);
        EXPECT_FALSE(verdict.close());
        settle();
        EXPECT_TRUE(verdict.isVisible()) << c.what;
        verdict.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
        settle();
        EXPECT_FALSE(verdict.isVisible()) << c.what;
        EXPECT_EQ(verdict.result(), QDialog::Accepted) << c.what;
    }
}

// Guards: the longest name the form takes running into the club's or widening the screen; a
// sixth club or "No Jugar" with the five slots dealt that still changes a slot on screen.
// (How many slots the planner deals is the game's rule.)
TEST_F(MendsScreens, thePlannerKeepsALongNameOffTheClubAndShowsNoSixthSlot)
{
    goToMenu();
    click("Command4");
    const QString nombre(50, 'W'), apellidos(50, 'M');
    type("txtNombre", nombre);
    type("txtApellidos", apellidos);
    QTest::mouseClick(find("IAdemar"), Qt::LeftButton);
    click("cmdSeguir");
    ASSERT_EQ(at(), "Pretemporada");
    EXPECT_EQ(text("lblNombre"), nombre + ' ' + apellidos);
    expectTidy("a long name");
    screenshot("planner_long_name");

    // Only the labels that name the country and the club just picked change.
    for (int slot = 0; slot < 4; ++slot)
        click("cmdNoJugar");
    chooseClub("cmdFrancia", 0);
    const auto before = labels();
    click("cmdNoJugar");
    chooseClub("cmdCroacia", 1);
    const auto after = labels();
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        EXPECT_TRUE(after[i] == before[i] || after[i].first == "lblPaisSel" || after[i].first == "lblNombreEquipo")
            << after[i].first.toStdString() << " " << after[i].second.toStdString();
    }
    EXPECT_EQ(text("lblPaisSel"), "CROACIA");
}
