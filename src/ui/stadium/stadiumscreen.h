#pragma once

#include "career/week.h"
#include "common/page.h"
#include "context.h"
#include "stadium/works.h"

#include <array>

class QAbstractButton;
class QButtonGroup;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace ui {

// "REMODELAR ESTADIO": the works under way, the works the stadium can take next, and on a
// home match's week the prices of tickets and boards. Everything is read afresh each time the
// screen opens; only the ticks of the boxes live on the screen, and they go when it closes.
class StadiumScreen : public Page
{
    Q_OBJECT

public:
    StadiumScreen(game::Context context, game::Week &week, QWidget *parent = nullptr);

private:
    // Each frame is made inside the one that holds it, so that it is styled once, where it
    // stands, and not again each time a finished frame moves into another.
    QGroupBox *buildWorks();
    QGroupBox *buildRemodel();
    QGroupBox *buildSeats(QWidget *parent);
    QGroupBox *buildParking(QWidget *parent);
    QGroupBox *buildMatchDay();
    QAbstractButton *makeBox(int number);

    // What the opening shows: the stadium, the boxes it offers, the works under way, prices.
    void load();
    void showUnderWay(const game::Works::UnderWay &work);
    void clearBoxes();
    void orderWorks();
    void openMatchDay();

    game::Context m_context;
    game::Week &m_week;
    std::array<QAbstractButton *, 26> m_boxes{};
    QButtonGroup *m_seats;
    QButtonGroup *m_parking;
    QGroupBox *m_works;
    QGroupBox *m_remodel;
    QGroupBox *m_matchDay;
    QLabel *m_picture;
    QLineEdit *m_ticket;
    QLineEdit *m_boards;
};

} // namespace ui
