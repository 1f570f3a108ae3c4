#pragma once

#include <QHeaderView>
#include <QTableView>

// How the game's grids behave: whole rows picked, one at a time, nothing edited. Their colours
// are the style sheet's.
inline void styleGrid(QTableView *grid)
{
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setAlternatingRowColors(true);
    grid->verticalHeader()->setVisible(false);
    grid->horizontalHeader()->setStretchLastSection(true);
}
