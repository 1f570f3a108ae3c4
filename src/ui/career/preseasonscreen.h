#pragma once

#include "career/career.h"
#include "common/page.h"

class QLabel;
class QPushButton;

namespace ui {

class CountryPicker;

// "Pretemporada": the five friendlies of August, chosen among the clubs of eighteen
// countries or declined, then on to the first week of the season.
class PreseasonScreen : public Page
{
    Q_OBJECT

public:
    explicit PreseasonScreen(game::Career &career, QWidget *parent = nullptr);

signals:
    // "VOLVER": the planner is left for the menu.
    void backToMenu();

private:
    QWidget *buildSlots();
    void chooseClub(const QString &name);
    void showSlots();

    game::Career &m_career;
    game::Preseason &m_planner;
    CountryPicker *m_countries;
    QLabel *m_clubChosen;
    QPushButton *m_decline;
};

} // namespace ui
