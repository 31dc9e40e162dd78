#include "qt/dialog_layout.h"

#include "qt/text.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <algorithm>

namespace {

using Kind = CDialogItem::Kind;

bool IsControl(const CDialogItem& item, ControlKind kind) {
    return item.m_Kind == Kind::Control && item.m_Control.m_Kind == kind;
}

bool IsList(const CDialogItem& item) {
    return IsControl(item, ControlKind::ListBox) || IsControl(item, ControlKind::ListCtrl);
}

bool IsButton(const CDialogItem& item) {
    return IsControl(item, ControlKind::Button) && !*item.m_Control.m_pLabel;
}

bool HasOnlyButtons(const CDialogItem& box) {
    return std::all_of(box.m_Items.begin(), box.m_Items.end(), IsButton);
}

bool IsClosingRow(const CDialogItem& item) {
    return item.m_Kind == Kind::Row && HasOnlyButtons(item) &&
           std::any_of(item.m_Items.begin(), item.m_Items.end(),
                       [](const CDialogItem& button) { return button.m_Control.m_nId == IDOK; });
}

// Whether there is something in the item that is the more useful the higher it is.
bool GrowsDown(const CDialogItem& item) {
    const bool bGrows =
        IsList(item) || (IsControl(item, ControlKind::Edit) && item.m_Control.Has(STYLE_MULTI_LINE));
    return bGrows || std::any_of(item.m_Items.begin(), item.m_Items.end(), GrowsDown);
}

// The same for its width.
bool GrowsAcross(const CDialogItem& item) {
    if (item.m_Kind != Kind::Control)
        return std::any_of(item.m_Items.begin(), item.m_Items.end(), GrowsAcross);
    return item.m_Control.m_Kind != ControlKind::Button;
}

// A box with its label and what hangs on: a spin control or colour button, buttons behind it. Or anything
// else that has a place of its own in a row.
struct CField {
    std::vector<const CDialogItem*> m_Items;

    const CDialogItem& First() const { return *m_Items.front(); }
    bool HasLabel() const { return First().m_Kind == Kind::Control && *First().m_Control.m_pLabel; }
};

bool HangsOnBox(const CDialogItem& item, const std::vector<CField>& before) {
    if (item.m_Kind != Kind::Control || before.empty() || before.back().First().m_Kind != Kind::Control)
        return false;
    const CDialogItem& box = before.back().First();
    const bool bBox = IsControl(box, ControlKind::Edit) || IsControl(box, ControlKind::ComboBox);
    return (item.m_Control.m_nBuddy && item.m_Control.m_nBuddy == box.m_Control.m_nId) ||
           (bBox && IsButton(item));
}

void CollectFields(const CDialogItem& item, std::vector<CField>& fields) {
    if (item.m_Kind == Kind::Row) {
        for (const CDialogItem& inner : item.m_Items)
            CollectFields(inner, fields);
    } else if (HangsOnBox(item, fields)) {
        fields.back().m_Items.push_back(&item);
    } else {
        fields.push_back({{&item}});
    }
}

class CDialogLayout {
public:
    CDialogLayout(QWidget& window, const CPlaceControl& place) : m_Window(window), m_Place(place) {}

    void Fill(const CDialogItem& content) {
        LayOutColumn(content, m_Window);
        QWidget* pBefore = nullptr;
        for (QWidget* pStop : m_TabStops) {
            if (pBefore)
                QWidget::setTabOrder(pBefore, pStop);
            pBefore = pStop;
        }
    }

private:
    void LayOutColumn(const CDialogItem& column, QWidget& parent) {
        auto* pGrid = new QGridLayout(&parent);
        if (&parent != &m_Window && column.m_Kind != Kind::Group)
            pGrid->setContentsMargins(0, 0, 0, 0);
        std::vector<std::vector<CField>> rows;
        size_t nWidest = 1;
        for (const CDialogItem& item : column.m_Items) {
            CollectFields(item, rows.emplace_back());
            if (IsFormRow(rows.back()))
                nWidest = std::max(nWidest, rows.back().size());
        }
        const int nColumns = static_cast<int>(nWidest) * 2; // a label and a box each
        for (int nColumn = 1; nColumn < nColumns; nColumn += 2)
            pGrid->setColumnStretch(nColumn, 1);
        for (size_t nRow = 0; nRow < rows.size(); ++nRow)
            AddRow(*pGrid, column.m_Items[nRow], rows[nRow], nColumns, parent, HasOnlyButtons(column));
        if (!GrowsDown(column))
            SpreadBelow(*pGrid, IsClosingRow(column.m_Items.back()));
    }

    static bool IsFormRow(const std::vector<CField>& fields) {
        return std::any_of(fields.begin(), fields.end(),
                           [](const CField& field) { return field.HasLabel() && !IsList(field.First()); });
    }

    // Where nothing grows, height that is left over goes below, or above the closing buttons.
    static void SpreadBelow(QGridLayout& grid, bool bAboveLast) {
        const int nRow = grid.rowCount();
        if (!bAboveLast)
            grid.setRowStretch(nRow, 1);
    }

    void AddRow(QGridLayout& grid, const CDialogItem& item, const std::vector<CField>& fields, int nColumns,
                QWidget& parent, bool bAmongButtons) {
        const int nRow = grid.rowCount();
        if (IsClosingRow(item)) {
            grid.setRowMinimumHeight(nRow, grid.verticalSpacing());
            grid.setRowStretch(nRow, GrowsDownBefore(grid) ? 0 : 1);
            grid.addWidget(ClosingButtons(item, parent), nRow + 1, 0, 1, nColumns);
        } else if (IsFormRow(fields)) {
            AddFormRow(grid, nRow, fields, nColumns, parent);
        } else if (fields.size() == 1) {
            AddSingle(grid, nRow, fields.front(), nColumns, parent, bAmongButtons);
        } else {
            grid.addLayout(Line(item.m_Items, parent), nRow, 0, 1, nColumns);
        }
        if (GrowsDown(item))
            grid.setRowStretch(grid.rowCount() - 1, 1);
    }

    static bool GrowsDownBefore(const QGridLayout& grid) {
        for (int nRow = 0; nRow < grid.rowCount(); ++nRow) {
            if (grid.rowStretch(nRow) > 0)
                return true;
        }
        return false;
    }

    void AddFormRow(QGridLayout& grid, int nRow, const std::vector<CField>& fields, int nColumns,
                    QWidget& parent) {
        for (size_t nField = 0; nField < fields.size(); ++nField) {
            const CField& field = fields[nField];
            const int nColumn = static_cast<int>(nField) * 2;
            const bool bLast = nField + 1 == fields.size();
            const int nEnd = bLast ? nColumns : nColumn + 2;
            const int nBox = field.HasLabel() ? nColumn + 1 : nColumn;
            QLabel* pLabel = field.HasLabel() ? MakeLabel(field.First().m_Control, parent) : nullptr;
            const bool bDown = GrowsDown(field.First());
            if (pLabel)
                grid.addWidget(pLabel, nRow, nColumn, bDown ? Qt::AlignTop : LabelAlignment(parent));
            AddBox(grid, field, nRow, nBox, nEnd - nBox, parent, pLabel);
        }
    }

    void AddBox(QGridLayout& grid, const CField& field, int nRow, int nColumn, int nSpan, QWidget& parent,
                QLabel* pLabel) {
        if (field.m_Items.size() == 1) {
            QWidget* pPlaced = Place(field.First(), parent, pLabel);
            const bool bButton = IsControl(field.First(), ControlKind::Button);
            grid.addWidget(pPlaced, nRow, nColumn, 1, nSpan, bButton ? Qt::AlignLeft : Qt::Alignment());
            return;
        }
        auto* pLine = new QHBoxLayout;
        for (const CDialogItem* pItem : field.m_Items) {
            QWidget* pPlaced = Place(*pItem, parent, pItem == field.m_Items.front() ? pLabel : nullptr);
            if (pPlaced)
                pLine->addWidget(pPlaced, pLine->isEmpty() ? 1 : 0);
        }
        grid.addLayout(pLine, nRow, nColumn, 1, nSpan);
    }

    // A row of one item without a label at its side: a group, a list below its label, a button, a text.
    void AddSingle(QGridLayout& grid, int nRow, const CField& field, int nColumns, QWidget& parent,
                   bool bAmongButtons) {
        if (field.m_Items.size() > 1)
            return AddBox(grid, field, nRow, 0, nColumns, parent, nullptr);
        QLabel* pLabel = field.HasLabel() ? MakeLabel(field.First().m_Control, parent) : nullptr;
        if (pLabel)
            grid.addWidget(pLabel, nRow++, 0, 1, nColumns);
        QWidget* pPlaced = Place(field.First(), parent, pLabel);
        const bool bLeft = IsButton(field.First()) && !bAmongButtons;
        grid.addWidget(pPlaced, nRow, 0, 1, nColumns, bLeft ? Qt::AlignLeft : Qt::Alignment());
    }

    // Boxes and controls side by side.
    QHBoxLayout* Line(const std::vector<CDialogItem>& items, QWidget& parent) {
        auto* pLine = new QHBoxLayout;
        bool bGrows = false;
        for (const CDialogItem& item : items) {
            bGrows |= GrowsAcross(item);
            if (QWidget* pPlaced = Place(item, parent, nullptr))
                pLine->addWidget(pPlaced, GrowsAcross(item) ? 1 : 0);
        }
        if (!bGrows)
            pLine->addStretch(1);
        return pLine;
    }

    // Null for a control that another one's widget shows.
    QWidget* Place(const CDialogItem& item, QWidget& parent, QLabel* pLabel) {
        if (item.m_Kind == Kind::Control)
            return PlaceControl(item.m_Control, parent, pLabel);
        QWidget* pBox =
            item.m_Kind == Kind::Group ? new QGroupBox(ToQt(item.m_pTitle), &parent) : new QWidget(&parent);
        if (item.m_Kind == Kind::Row) {
            pBox->setLayout(Line(item.m_Items, *pBox));
            pBox->layout()->setContentsMargins(0, 0, 0, 0);
        } else {
            LayOutColumn(item, *pBox);
        }
        return pBox;
    }

    QWidget* PlaceControl(const CControlDescription& control, QWidget& parent, QLabel* pLabel) {
        const CPlacedControl placed = m_Place(control, parent);
        if (!placed.m_pWidget)
            return nullptr;
        if (pLabel)
            pLabel->setBuddy(placed.m_pWidget);
        if (placed.m_pWidget->focusPolicy() & Qt::TabFocus)
            m_TabStops.push_back(placed.m_pWidget);
        return placed.m_pPlaced;
    }

    static QLabel* MakeLabel(const CControlDescription& control, QWidget& parent) {
        auto* pLabel = new QLabel(ToQt(control.m_pLabel), &parent);
        pLabel->setTextFormat(Qt::PlainText);
        return pLabel;
    }

    static Qt::Alignment LabelAlignment(const QWidget& parent) {
        const int nStyle = parent.style()->styleHint(QStyle::SH_FormLayoutLabelAlignment, nullptr, &parent);
        return Qt::Alignment(nStyle) | Qt::AlignVCenter;
    }

    QWidget* ClosingButtons(const CDialogItem& row, QWidget& parent) {
        auto* pBox = new QDialogButtonBox(&parent);
        for (const CDialogItem& item : row.m_Items) {
            const CControlDescription& control = item.m_Control;
            auto* pButton = static_cast<QPushButton*>(m_Place(control, *pBox).m_pWidget);
            pBox->addButton(pButton, control.m_nId == IDOK       ? QDialogButtonBox::AcceptRole
                                     : control.m_nId == IDCANCEL ? QDialogButtonBox::RejectRole
                                                                 : QDialogButtonBox::ActionRole);
        }
        for (int nAt = 0; nAt < pBox->layout()->count(); ++nAt) {
            if (QWidget* pButton = pBox->layout()->itemAt(nAt)->widget())
                m_TabStops.push_back(pButton);
        }
        return pBox;
    }

    QWidget& m_Window;
    const CPlaceControl& m_Place;
    std::vector<QWidget*> m_TabStops;
};

} // namespace

void LayOutDialog(const CDialogDescription& description, QWidget& window, const CPlaceControl& place) {
    CDialogLayout(window, place).Fill(description.m_Content);
}
