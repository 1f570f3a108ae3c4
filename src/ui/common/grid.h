#pragma once

#include <QTableView>

namespace ui {

// A grid of the game: light rows on the navy screens (the colours are the sheet's), whole rows
// picked one at a time, nothing edited, and its columns as wide as what they show.
class Grid : public QTableView
{
    Q_OBJECT

public:
    explicit Grid(const char *name, QWidget *parent = nullptr);

    // Makes each column as wide as its widest cell. A grid not yet on show measures when it
    // first shows: by then it stands on its screen and wears the sheet, and it measures once.
    void fitColumns();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fitNow();

    bool m_fitOnShow = false;
};

} // namespace ui
