#pragma once

#include "common/page.h"
#include "context.h"
#include "transfers/market.h"


#include <array>

class QGridLayout;
class QLabel;
class QPushButton;

namespace ui {

class MoneyBox;
class Stepper;
class YearsBox;

// The player as the offer and contract screens show him: his name, and what stands beside
// "EDAD:", "NACIONALIDAD:", "POSICIÓN:", "LESIONADO:", "MEDIA:" and "EQUIPO:".
class PlayerCard : public QWidget
{
    Q_OBJECT

public:
    explicit PlayerCard(QWidget *parent = nullptr);

    void setCard(const game::Market::Card &card);

    // A heading and further facts below the card's own, in line with them.
    void addSection(const QString &caption);
    QLabel *addFact(const char *name, const QString &caption);

private:
    QGridLayout *m_grid;
    QLabel *m_name;
    std::array<QLabel *, 5> m_facts;
    QLabel *m_team;
};

// "Fichar Jugador": an offer for one player. The player sets the sum for the club, the
// clause and the wage for the player and the contract's years, and "HACER OFERTA" leaves the
// offer waiting; nothing more happens now, and the answer comes three weeks later. Nothing
// stands in its way: not the money, not the squad, not an earlier offer for the same player.
class OfferScreen : public Page
{
    Q_OBJECT

public:
    // A player on the market (listed) starts from what his club and he himself ask; any other
    // starts from one euro each and a year.
    enum class Mode { Free, Listed };

    explicit OfferScreen(game::Context context, QWidget *parent = nullptr);

    // Shows the player and the terms to start from; the screen shows whoever was picked last.
    void showPlayer(int player, Mode mode);
    int player() const { return m_player; }

    // One tick of a held step button, as the timer runs it.
    void step();

private:
    void makeOffer();

    game::Context m_context;
    int m_player = 0;
    PlayerCard *m_card;
    QLabel *m_notes;
    MoneyBox *m_oferta;
    MoneyBox *m_clausula;
    MoneyBox *m_ficha;
    YearsBox *m_years;
    Stepper *m_stepper;
    QPushButton *m_make;
};

} // namespace ui
