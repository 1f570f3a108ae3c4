#pragma once

#include "career/history.h"
#include "common/page.h"

class QComboBox;
class QTableView;

template<typename Row>
class RowsModel;

namespace ui {

// "Historial": the story of the career. Every closed season in a table (the champion, the
// club's place and line, the budget at the close, its top scorer, the dearest signing and
// sale), the club's scorers of any season, the current one included, and two charts: the
// place season by season, the champion at the top, and the budget at each close.
class HistoryScreen : public Page
{
    Q_OBJECT

public:
    explicit HistoryScreen(game::Context context, QWidget *parent = nullptr);

private:
    void showScorers(int season);

    game::History m_history;
    QComboBox *m_season;
    RowsModel<game::History::Scorer> *m_scorers;
};

} // namespace ui
