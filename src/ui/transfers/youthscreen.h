#pragma once

#include "common/page.h"
#include "context.h"


class QListWidget;

namespace ui {

class PlayerGrid;

// "Búsqueda de Jóvenes Promesas": the young players of the youth pool, one position at a
// time. The grid stays empty until "BUSCAR PROMESA" is pressed; a youth picked leads to an
// offer as for a listed player, from the clause and wage he asks.
class YouthScreen : public Page
{
    Q_OBJECT

public:
    explicit YouthScreen(game::Context context, QWidget *parent = nullptr);

    // Loads the youths of the position chosen in the list.
    void search();

signals:
    void playerPicked(int player);

private:
    game::Context m_context;
    QListWidget *m_positions;
    PlayerGrid *m_youths;
};

} // namespace ui
