#pragma once

#include <QAbstractTableModel>
#include <QPixmap>
#include <QString>

#include <utility>
#include <vector>

// A read-only table for the grids of the screens over the rows the game returns, kept as the
// game's own structs, as Qt's address book keeps its contacts. Each column says how one cell
// of a row reads; a row picked is the struct again, so nothing is ever read back out of the
// text of a cell.
//
//   RowsModel<game::CallUp::Player> players({{tr("Nº"), [](const Player &p) { return QString::number(p.id); }}});
//   players.setRows(callUp.squad());
//   const int id = players.row(grid->currentIndex().row()).id;
template<typename Row>
class RowsModel : public QAbstractTableModel
{
public:
    struct Column
    {
        QString header;
        QString (*cell)(const Row &row);
    };

    explicit RowsModel(std::vector<Column> columns, QObject *parent = nullptr)
        : QAbstractTableModel(parent), m_columns(std::move(columns))
    {
    }

    // A picture before a column's text, such as a club's crest.
    void setDecoration(int column, QPixmap (*picture)(const Row &row))
    {
        m_decorations.emplace_back(column, picture);
    }

    void setRows(std::vector<Row> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }
    const Row &row(int index) const { return m_rows.at(std::size_t(index)); }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_columns.size());
    }

    // A cell's text, and the same text under the pointer: a cell cut short still shows it whole.
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (index.isValid() && role == Qt::DecorationRole) {
            for (const auto &[column, picture] : m_decorations) {
                if (column == index.column())
                    return picture(m_rows.at(std::size_t(index.row())));
            }
            return {};
        }
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
            return {};
        return m_columns.at(std::size_t(index.column())).cell(m_rows.at(std::size_t(index.row())));
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        if (orientation == Qt::Horizontal)
            return section < int(m_columns.size()) ? m_columns[std::size_t(section)].header : QString();
        return section + 1;
    }

private:
    std::vector<Column> m_columns;
    std::vector<std::pair<int, QPixmap (*)(const Row &)>> m_decorations;
    std::vector<Row> m_rows;
};
