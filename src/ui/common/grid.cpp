#include "grid.h"

#include <QHash>
#include <QHeaderView>
#include <QStyledItemDelegate>

namespace ui {

namespace {

// The cells of a grid repeat themselves (a position, a nationality, an age), and measuring one
// lays its text out: each text is measured once, and its size kept for the grid's font.
class MeasuredOnce : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (option.font != m_font) {
            m_sizes.clear();
            m_font = option.font;
        }
        const QString text = index.data().toString();
        auto known = m_sizes.constFind(text);
        if (known == m_sizes.constEnd())
            known = m_sizes.insert(text, QStyledItemDelegate::sizeHint(option, index));
        return *known;
    }

private:
    mutable QFont m_font;
    mutable QHash<QString, QSize> m_sizes;
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
