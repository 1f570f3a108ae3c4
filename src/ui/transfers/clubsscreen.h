#pragma once

#include "common/page.h"
#include "context.h"

class QLabel;

namespace ui {

class PlayerGrid;

// "Fichar" (heading "OFERTAS"): from a country to its clubs, from a club to its squad, so
// that any player of any club can be made an offer, whether his club sells him or not.
class ClubsScreen : public Page
{
    Q_OBJECT

public:
    explicit ClubsScreen(game::Context context, QWidget *parent = nullptr);

signals:
    // A row of the squad was picked: an offer for that player.
    void playerPicked(int player);

private:
    QWidget *buildSquad();
    void chooseClub(const QString &name);

    game::Context m_context;
    QLabel *m_clubChosen;
    QLabel *m_squadHint;
    PlayerGrid *m_squad;
};

} // namespace ui
