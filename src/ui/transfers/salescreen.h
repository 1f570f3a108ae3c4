#pragma once

#include "context.h"
#include "transfers/market.h"

#include <QTableView>
#include <QWidget>

#include <vector>

class RowsModel;

namespace ui {

// A grid of players as the three market screens show them. Each grid shows its own columns;
// before them stands the player's number, kept out of sight, so that a row pressed names him.
class PlayerGrid : public QTableView
{
    Q_OBJECT

public:
    enum class Column { Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad };

    PlayerGrid(const char *name, std::vector<Column> shown, QWidget *parent = nullptr);

    // One row a player, in the order given.
    void setPlayers(const std::vector<game::Market::Line> &players);
    // The number of the player on that row.
    int playerAt(int row) const;

signals:
    void playerPicked(int player);

private:
    std::vector<Column> m_columns;
    RowsModel *m_rows;
};

// "Fichar_EnVenta": everybody on the market, in four grids by position group (goalkeepers,
// wings, backs, centres). The way into the market: from here the player goes on to the
// clubs of every country, to the scout's search, or to an offer for a listed player.
class SaleScreen : public QWidget
{
    Q_OBJECT

public:
    explicit SaleScreen(game::Context context, QWidget *parent = nullptr);

signals:
    // A row was picked: the offer for that listed player.
    void playerPicked(int player);
    void offersRequested();
    void scoutRequested();
    void closeRequested();
};

} // namespace ui
