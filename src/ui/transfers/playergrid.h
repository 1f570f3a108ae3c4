#pragma once

#include "common/grid.h"
#include "common/rowsmodel.h"
#include "transfers/market.h"

#include <functional>
#include <vector>

class QGridLayout;

namespace ui {

// A grid of players as the market, the squad and the youth search show them. Each grid
// shows its own columns; before them stands the player's number, kept out of sight, so that
// a row pressed names him.
class PlayerGrid : public Grid
{
    Q_OBJECT

public:
    enum class Column { Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad, Years };

    PlayerGrid(const char *name, const std::vector<Column> &shown, QWidget *parent = nullptr);

    // One row a player, in the order given.
    void setPlayers(std::vector<game::Market::Line> players);
    // The number of the player on that row, or 0.
    int playerAt(int row) const;

signals:
    void playerPicked(int player);

private:
    RowsModel<game::Market::Line> *m_rows;
};

// The four position groups of a screen of players (goalkeepers, wings, backs, centres), each
// a captioned grid, two by two; pivots have no grid of their own. Each grid reads its players
// from `players` and reports a row picked to `picked`. The grids are made on the screen that
// shows them, so that they are laid out and styled there once, filled.
QGridLayout *groupGrids(QWidget *screen, std::vector<PlayerGrid::Column> columns,
                        const std::function<std::vector<game::Market::Line>(game::Market::Group)> &players,
                        const std::function<void(int)> &picked, int spacing);

} // namespace ui
