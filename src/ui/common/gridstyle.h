#pragma once

#include <QHeaderView>
#include <QTableView>

// The look of the game's grids: light rows on the navy screens, whole rows picked.
inline void styleGrid(QTableView *grid)
{
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setAlternatingRowColors(true);
    grid->verticalHeader()->setVisible(false);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->setStyleSheet(QStringLiteral(
        "QTableView { background: #f4f6fb; alternate-background-color: #e3e8f3; color: #10203f;"
        " selection-background-color: #e8a33d; selection-color: #10203f; gridline-color: #c5cde0; }"
        "QHeaderView::section { background: #1b2f57; color: #e8a33d; font-weight: bold; padding: 4px;"
        " border: none; border-right: 1px solid #0f1e3c; }"));
}
