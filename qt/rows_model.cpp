#include "qt/rows_model.h"

namespace orrelix {

void CRowsModel::RowsInserted(int nFirst, int nCount) {
    if (nCount <= 0)
        return;
    beginInsertRows({}, nFirst, nFirst + nCount - 1);
    m_nRows += nCount;
    endInsertRows();
}

void CRowsModel::RowsRemoved(int nFirst, int nCount) {
    if (nCount <= 0)
        return;
    beginRemoveRows({}, nFirst, nFirst + nCount - 1);
    m_nRows -= nCount;
    endRemoveRows();
}

void CRowsModel::RowsChanged(int nFirst, int nCount) {
    if (nCount > 0)
        emit dataChanged(index(nFirst, 0), index(nFirst + nCount - 1, columnCount() - 1));
}

void CRowsModel::Reset() {
    beginResetModel();
    m_nRows = CountRows();
    endResetModel();
}

int CRowsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : CountColumns();
}

QVariant CRowsModel::data(const QModelIndex& index, int nRole) const {
    if (nRole != Qt::DisplayRole && nRole != Qt::EditRole)
        return {};
    QString text = TextAt(index.row(), index.column());
    if (nRole == Qt::DisplayRole)
        text.replace("\n", QStringLiteral(" \u21B5 "));
    return text;
}

} // namespace orrelix
