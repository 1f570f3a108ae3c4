#pragma once

#include "common/page.h"
#include "context.h"


class QLabel;
class QPushButton;

namespace ui {

class MoneyBox;
class PlayerCard;
class Stepper;
class YearsBox;

// "Situación en el Club": one of the user's own players, and what can be done with his
// contract. A renewal is answered at once; a dismissal sends him to the released players and
// pays him every year left; "TRASPASAR" puts him on the market or takes him off it.
class ContractScreen : public Page
{
    Q_OBJECT

public:
    explicit ContractScreen(game::Context context, QWidget *parent = nullptr);

    // Shows the player and his present terms to start the new contract from.
    void showPlayer(int player);
    int player() const { return m_player; }

    // One tick of a held step button, as the timer runs it.
    void step();

signals:
    // A renewal was tried, taken or refused; the screen has done its work.
    void renewalDone(bool renewed);
    // He has left the club.
    void dismissed();

private:
    void renew();
    void dismiss();
    void toggleListing();
    void showListing(bool listed);

    game::Context m_context;
    int m_player = 0;
    PlayerCard *m_card;
    QLabel *m_listing;
    QLabel *m_wageNow;
    QLabel *m_clauseNow;
    QLabel *m_yearsNow;
    MoneyBox *m_clausula;
    MoneyBox *m_ficha;
    YearsBox *m_years;
    Stepper *m_stepper;
    QPushButton *m_renew;
    QPushButton *m_dismiss;
    QPushButton *m_list;
};

} // namespace ui
