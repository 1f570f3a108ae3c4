#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

// A read-only table of texts for the grids of the screens: a header and rows of cells.
class RowsModel : public QAbstractTableModel
{
public:
    explicit RowsModel(QStringList headers, QObject *parent = nullptr)
        : QAbstractTableModel(parent), m_headers(std::move(headers))
    {
    }

    void setRows(std::vector<QStringList> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }
    const QStringList &row(int index) const { return m_rows.at(std::size_t(index)); }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_headers.size()); }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
            return {};
        const QStringList &cells = m_rows.at(std::size_t(index.row()));
        return index.column() < cells.size() ? cells.at(index.column()) : QString();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        if (orientation == Qt::Horizontal)
            return section < m_headers.size() ? m_headers.at(section) : QString();
        return section + 1;
    }

private:
    QStringList m_headers;
    std::vector<QStringList> m_rows;
};
