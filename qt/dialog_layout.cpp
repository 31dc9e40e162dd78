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

namespace orrelix {

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

// A box of one line in a place as tall as one of several lines.
bool IsLevel(const CDialogItem& item) {
    return IsControl(item, ControlKind::Edit) && item.m_Control.Has(STYLE_LEVEL);
}

// Whether the item has use for more height than it needs.
bool GrowsDown(const CDialogItem& item) {
    const bool bGrows = IsList(item) || IsLevel(item) ||
                        (IsControl(item, ControlKind::Edit) && item.m_Control.Has(STYLE_MULTI_LINE));
    return bGrows || std::any_of(item.m_Items.begin(), item.m_Items.end(), GrowsDown);
}

// The same for its width.
bool GrowsAcross(const CDialogItem& item) {
    if (item.m_Kind == Kind::Picture)
        return false;
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

CDialogItem ColumnOf(const CDialogItem& item) {
    CDialogItem column;
    column.m_Items.push_back(item);
    return column;
}

class CDialogLayout {
public:
    CDialogLayout(QWidget& window, CWidgetMaker& place) : m_Window(window), m_Place(place) {}

    QWidget* Fill(const CDialogItem& content, QWidget& body) {
        CDialogItem column = content.m_Kind == Kind::Column ? content : ColumnOf(content);
        const CDialogItem last = column.m_Items.back();
        const bool bClosing = IsClosingRow(last);
        if (bClosing)
            column.m_Items.pop_back();
        LayOutColumn(column, body);
        QWidget* pClosing = bClosing ? ClosingButtons(last) : nullptr;
        for (size_t nStop = 1; nStop < m_TabStops.size(); ++nStop)
            QWidget::setTabOrder(m_TabStops[nStop - 1], m_TabStops[nStop]);
        return pClosing;
    }

private:
    // A grid with a label and a box in turn, as many pairs as the longest row has.
    struct CGrid {
        QGridLayout& m_Layout;
        QWidget& m_Parent;
        int m_nColumns;
        bool m_bButtons; // nothing but buttons in it, which are all as wide as the widest
    };

    void LayOutColumn(const CDialogItem& column, QWidget& parent) {
        std::vector<std::vector<CField>> rows;
        size_t nPairs = 1;
        for (const CDialogItem& item : column.m_Items) {
            CollectFields(item, rows.emplace_back());
            if (IsFormRow(rows.back()))
                nPairs = std::max(nPairs, rows.back().size());
        }
        auto* pLayout = new QGridLayout(&parent);
        if (column.m_Kind != Kind::Group)
            pLayout->setContentsMargins(0, 0, 0, 0);
        const CGrid grid{*pLayout, parent, static_cast<int>(nPairs) * 2, HasOnlyButtons(column)};
        for (int nBoxes = 1; nBoxes < grid.m_nColumns; nBoxes += 2)
            pLayout->setColumnStretch(nBoxes, 1);
        for (size_t nRow = 0; nRow < rows.size(); ++nRow)
            AddRow(grid, column.m_Items[nRow], rows[nRow]);
        if (!GrowsDown(column))
            pLayout->setRowStretch(pLayout->rowCount(), 1);
        if (grid.m_bButtons)
            MakeEquallyWide(parent.findChildren<QPushButton*>());
    }

    static void MakeEquallyWide(const QList<QPushButton*>& buttons) {
        int nWidest = 0;
        for (const QPushButton* pButton : buttons)
            nWidest = qMax(nWidest, pButton->sizeHint().width());
        for (QPushButton* pButton : buttons)
            pButton->setMinimumWidth(nWidest);
    }

    static bool IsFormRow(const std::vector<CField>& fields) {
        return std::any_of(fields.begin(), fields.end(),
                           [](const CField& field) { return field.HasLabel() && !IsList(field.First()); });
    }

    void AddRow(const CGrid& grid, const CDialogItem& item, const std::vector<CField>& fields) {
        const int nRow = grid.m_Layout.rowCount();
        if (IsFormRow(fields))
            AddFormRow(grid, nRow, fields);
        else if (fields.size() == 1)
            AddSingle(grid, nRow, fields.front());
        else
            grid.m_Layout.addLayout(Line(item.m_Items, grid.m_Parent), nRow, 0, 1, grid.m_nColumns);
        if (GrowsDown(item))
            grid.m_Layout.setRowStretch(grid.m_Layout.rowCount() - 1, 1);
    }

    void AddFormRow(const CGrid& grid, int nRow, const std::vector<CField>& fields) {
        for (size_t nField = 0; nField < fields.size(); ++nField) {
            const CField& field = fields[nField];
            const int nColumn = static_cast<int>(nField) * 2;
            const int nEnd = nField + 1 == fields.size() ? grid.m_nColumns : nColumn + 2;
            QLabel* pLabel = MakeLabel(field, grid.m_Parent);
            if (pLabel)
                grid.m_Layout.addWidget(pLabel, nRow, nColumn, LabelAlignment(field, grid.m_Parent));
            AddField(grid, field, nRow, pLabel ? nColumn + 1 : nColumn, nEnd, pLabel);
        }
    }

    // A row of one item without a label at its side: a group, a list below its label, a button, a text.
    void AddSingle(const CGrid& grid, int nRow, const CField& field) {
        QLabel* pLabel = MakeLabel(field, grid.m_Parent);
        if (pLabel)
            grid.m_Layout.addWidget(pLabel, nRow++, 0, 1, grid.m_nColumns);
        AddField(grid, field, nRow, 0, grid.m_nColumns, pLabel);
    }

    void AddField(const CGrid& grid, const CField& field, int nRow, int nColumn, int nEnd, QLabel* pLabel) {
        if (field.m_Items.size() > 1) {
            grid.m_Layout.addLayout(BoxAndMore(field, grid.m_Parent, pLabel), nRow, nColumn, 1,
                                    nEnd - nColumn);
            return;
        }
        QWidget* pPlaced = Place(field.First(), grid.m_Parent, pLabel);
        const bool bLeft = qobject_cast<QPushButton*>(pPlaced) && !grid.m_bButtons;
        grid.m_Layout.addWidget(pPlaced, nRow, nColumn, 1, nEnd - nColumn,
                                bLeft                    ? Qt::AlignLeft
                                : IsLevel(field.First()) ? Qt::AlignTop
                                                         : Qt::Alignment());
    }

    QHBoxLayout* BoxAndMore(const CField& field, QWidget& parent, QLabel* pLabel) {
        auto* pLine = new QHBoxLayout;
        QWidget* pFirst = Place(field.First(), parent, pLabel);
        const bool bFixed = pFirst->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
        pLine->addWidget(pFirst, bFixed ? 0 : 1);
        for (size_t nItem = 1; nItem < field.m_Items.size(); ++nItem) {
            if (QWidget* pPlaced = Place(*field.m_Items[nItem], parent, nullptr))
                pLine->addWidget(pPlaced);
        }
        if (bFixed)
            pLine->addStretch(1);
        return pLine;
    }

    // Boxes and controls side by side.
    QHBoxLayout* Line(const std::vector<CDialogItem>& items, QWidget& parent) {
        auto* pLine = new QHBoxLayout;
        bool bGrows = false;
        for (const CDialogItem& item : items) {
            bGrows |= GrowsAcross(item);
            // A list brings the label above it along.
            const bool bLabel = IsList(item) && *item.m_Control.m_pLabel;
            QWidget* pPlaced = Place(bLabel ? ColumnOf(item) : item, parent, nullptr);
            if (pPlaced)
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
        if (item.m_Kind == Kind::Picture)
            return m_Place.PlacePicture(item, parent);
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
        const CPlacedControl placed = m_Place.PlaceControl(control, parent);
        if (!placed.m_pWidget)
            return nullptr;
        if (pLabel)
            pLabel->setBuddy(placed.m_pWidget);
        if (placed.m_pWidget->focusPolicy() & Qt::TabFocus)
            m_TabStops.push_back(placed.m_pWidget);
        return placed.m_pPlaced;
    }

    // Null where the field has none.
    static QLabel* MakeLabel(const CField& field, QWidget& parent) {
        if (!field.HasLabel())
            return nullptr;
        auto* pLabel = new QLabel(ToQt(field.First().m_Control.m_pLabel), &parent);
        pLabel->setTextFormat(Qt::PlainText);
        return pLabel;
    }

    static Qt::Alignment LabelAlignment(const CField& field, const QWidget& parent) {
        if (GrowsDown(field.First()))
            return Qt::AlignTop;
        const int nStyle = parent.style()->styleHint(QStyle::SH_FormLayoutLabelAlignment, nullptr, &parent);
        return Qt::Alignment(nStyle) | Qt::AlignVCenter;
    }

    // Their icons are those of the message boxes' buttons, where the style has any.
    QWidget* ClosingButtons(const CDialogItem& row) {
        auto* pBox = new QDialogButtonBox(&m_Window);
        const bool bIcons =
            pBox->style()->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons, nullptr, pBox);
        for (const CDialogItem& item : row.m_Items) {
            const CControlDescription& control = item.m_Control;
            auto* pButton = static_cast<QPushButton*>(m_Place.PlaceControl(control, *pBox).m_pWidget);
            if (bIcons && control.m_nId == IDOK)
                pButton->setIcon(pBox->style()->standardIcon(QStyle::SP_DialogOkButton, nullptr, pButton));
            if (bIcons && control.m_nId == IDCANCEL)
                pButton->setIcon(
                    pBox->style()->standardIcon(QStyle::SP_DialogCancelButton, nullptr, pButton));
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
    CWidgetMaker& m_Place;
    std::vector<QWidget*> m_TabStops;
};

} // namespace

QWidget* LayOutDialog(const CDialogDescription& description, QWidget& body, QWidget& window,
                      CWidgetMaker& maker) {
    return CDialogLayout(window, maker).Fill(description.m_Content, body);
}

} // namespace orrelix
