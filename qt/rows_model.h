// CRowsModel: the rows of a list, combo box or list view as Qt's views read them. It holds no copy of the
// texts, so a list of any length costs what is on the screen.
#pragma once

#include <QAbstractTableModel>

namespace orrelix {

// The role that tells whether a row is hot.
inline constexpr int kHotRole = Qt::UserRole;

class CRowsModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    // To be called after the control's rows have changed.
    void RowsInserted(int nFirst, int nCount);
    void RowsRemoved(int nFirst, int nCount);
    void RowsChanged(int nFirst, int nCount);
    // Reads rows and columns afresh.
    void Reset();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_nRows; }
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;

protected:
    virtual int CountRows() const = 0;
    virtual int CountColumns() const { return 1; }
    // A text of several lines is shown as one, with signs where its lines end.
    virtual QString TextAt(int nRow, int nColumn) const = 0;

private:
    int m_nRows = 0; // that the views have been told of
};

} // namespace orrelix
