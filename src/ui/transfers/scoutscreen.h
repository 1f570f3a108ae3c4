#pragma once

#include "common/page.h"
#include "context.h"


class QLineEdit;
class QListWidget;

namespace ui {

class PlayerGrid;

// "Secretario" (the technical secretary): a search over every player of the game, of any
// club, the released ones and the user's own included, by name, surname, position, rating
// and age.
class ScoutScreen : public Page
{
    Q_OBJECT

public:
    explicit ScoutScreen(game::Context context, QWidget *parent = nullptr);

signals:
    // A row was picked: an offer for that player.
    void playerPicked(int player);

private:
    QWidget *buildCriteria();
    void search();

    game::Context m_context;
    QLineEdit *m_nombre;
    QLineEdit *m_apellidos;
    QLineEdit *m_media;
    QLineEdit *m_edad;
    QListWidget *m_posicion;
    PlayerGrid *m_players;
};

} // namespace ui
