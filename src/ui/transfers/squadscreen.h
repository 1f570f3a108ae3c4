#pragma once

#include "context.h"
#include "transfers/market.h"

#include <QTableView>
#include <QWidget>

#include <vector>

class RowsModel;

namespace ui {

// A grid of players for the squad and the youth search: the columns asked for, after the
// player's number, which is kept out of sight so that a row pressed names him.
class PlayerTable : public QTableView
{
    Q_OBJECT

public:
    enum class Column { Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad, Years };

    PlayerTable(const char *name, std::vector<Column> shown, QWidget *parent = nullptr);

    void setPlayers(const std::vector<game::Market::Line> &players);
    // The number of the player on that row, or 0.
    int playerAt(int row) const;

signals:
    void playerPicked(int player);

private:
    std::vector<Column> m_columns;
    RowsModel *m_rows;
};

// "LA PLANTILLA": the user's players in four grids by position group, each with the years
// left on his contract. A player picked leads to his contract; pivots have no grid here.
// The squad is read when the screen opens, and the screen is made afresh after a change.
class SquadScreen : public QWidget
{
    Q_OBJECT

public:
    explicit SquadScreen(game::Context context, QWidget *parent = nullptr);

signals:
    void playerPicked(int player);
    void youthRequested();
    void closeRequested();
};

} // namespace ui
