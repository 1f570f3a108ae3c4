#pragma once

#include "career/saves.h"
#include "common/page.h"
#include "context.h"

class QLabel;
class QPushButton;
class QTableView;

template<typename Row>
class RowsModel;

namespace ui {

// "Cargar": the careers kept, the latest first, each with its club's crest, the manager, the
// club, the season, the week, when it was saved and the club's budget. "CARGAR" (or a double
// click) takes the chosen one up where it stood; "BORRAR" deletes it once the player agrees.
class LoadScreen : public Page
{
    Q_OBJECT

public:
    LoadScreen(game::Context context, const game::Saves &saves, QWidget *parent = nullptr);

signals:
    void loadRequested(const QString &path);

private:
    void refresh();
    const game::SaveRecord *chosen() const;
    void removeChosen();

    game::Context m_context;
    const game::Saves &m_saves;
    RowsModel<game::SaveRecord> *m_rows;
    QTableView *m_table;
    QLabel *m_empty;
    QPushButton *m_load;
    QPushButton *m_remove;
};

} // namespace ui
