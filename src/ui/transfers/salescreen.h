#pragma once

#include "common/page.h"
#include "context.h"
#include "playergrid.h"


namespace ui {

// "Fichar_EnVenta": everybody on the market, in four grids by position group (goalkeepers,
// wings, backs, centres). The way into the market: from here the player goes on to the
// clubs of every country, to the scout's search, or to an offer for a listed player.
class SaleScreen : public Page
{
    Q_OBJECT

public:
    explicit SaleScreen(game::Context context, QWidget *parent = nullptr);

signals:
    // A row was picked: the offer for that listed player.
    void playerPicked(int player);
    void offersRequested();
    void scoutRequested();
};

} // namespace ui
