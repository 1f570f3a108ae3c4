#pragma once

#include "context.h"
#include "match/callup.h"

#include <QWidget>

class QListWidget;
class QTableView;
class RowsModel;

namespace ui {

// "Preparando Partido": the fourteen of the match squad, chosen from the club's players.
class CallUpScreen : public QWidget
{
    Q_OBJECT

public:
    explicit CallUpScreen(game::Context context, QWidget *parent = nullptr);

    // Reads the squad and the places again.
    void reload();

signals:
    void playRequested();
    void closeRequested();

private:
    void add();
    // The id of the player picked in the grid, or 0 with no pick.
    int pickedPlayerId() const;

    game::Context m_context;
    game::CallUp m_callUp;
    RowsModel *m_players;
    QTableView *m_grid;
    QListWidget *m_places;
};

} // namespace ui
