#include "grid.h"

#include <QHash>
#include <QHeaderView>
#include <QStyledItemDelegate>

namespace ui {

namespace {

// The cells of the grids repeat themselves (a position, a nationality, an age, the same players
// each time a list is opened), and measuring one lays its text out: each text is measured once
// in the grids' font, and its size kept for every grid of the game.
class MeasuredOnce : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        static QFont font;
        static QHash<QString, QSize> sizes;
        if (option.font != font) {
            sizes.clear();
            font = option.font;
        }
        const QString text = index.data().toString();
        auto known = sizes.constFind(text);
        if (known == sizes.constEnd())
            known = sizes.insert(text, QStyledItemDelegate::sizeHint(option, index));
        return *known;
    }
};

} // namespace

Grid::Grid(const char *name, QWidget *parent) : QTableView(parent)
{
    setItemDelegate(new MeasuredOnce(this));
    setObjectName(QString::fromUtf8(name));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    verticalHeader()->setVisible(false);
    horizontalHeader()->setStretchLastSection(true);
}

void Grid::fitColumns()
{
    m_fitOnShow = !isVisible();
    if (!m_fitOnShow)
        fitNow();
}

void Grid::fitNow()
{
    resizeColumnsToContents();
    // The last column still takes up what room is left.
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setStretchLastSection(true);
}

void Grid::showEvent(QShowEvent *event)
{
    if (m_fitOnShow) {
        m_fitOnShow = false;
        fitNow();
    }
    QTableView::showEvent(event);
}

} // namespace ui
