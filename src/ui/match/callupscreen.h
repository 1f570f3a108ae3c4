#pragma once

#include "common/page.h"
#include "common/rowsmodel.h"
#include "context.h"
#include "match/callup.h"

class QListWidget;

namespace ui {

class Grid;

// The columns of a grid of the club's players as the call-up and the tactics show them.
std::vector<RowsModel<game::CallUp::Player>::Column> squadColumns();

// "Preparando Partido": the fourteen of the match squad, chosen from the club's players.
class CallUpScreen : public Page
{
    Q_OBJECT

public:
    explicit CallUpScreen(game::Context context, QWidget *parent = nullptr);

    // Reads the squad and the places; the navigator does so at every opening, the first
    // included.
    void reload();

signals:
    void playRequested();

private:
    void add();
    // The id of the player picked in the grid, or 0 with no pick.
    int pickedPlayerId() const;

    game::Context m_context;
    game::CallUp m_callUp;
    RowsModel<game::CallUp::Player> *m_players;
    Grid *m_grid;
    QListWidget *m_places;
};

} // namespace ui
