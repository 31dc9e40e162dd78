#include "controls/colour_picker_popup.h"

#include "toolkit/desktop.h"

#include <algorithm>

namespace orrelix {

namespace {

// A cell's coloured inside has at least this side.
constexpr int kLeastInside = 5;

// The etched line above the box for any colour.
constexpr int kLineHeight = 2;

const CTableColour& TableRow(int nRow) {
    return GetColourTable()[static_cast<size_t>(nRow)];
}

int RowWithColour(CColour colour) {
    const CColourTable& table = GetColourTable();
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&](const CTableColour& entry) { return entry.m_Colour == colour; });
    return row == table.end() ? CColourPickerPopup::kNone : static_cast<int>(row - table.begin());
}

CRect MovedOntoScreen(CRect rect, const CRect& button, const CRect& screen) {
    if (rect.right > screen.right)
        rect = rect.Moved(screen.right - rect.right, 0);
    if (rect.left < screen.left)
        rect = rect.Moved(screen.left - rect.left, 0);
    if (rect.bottom > screen.bottom)
        rect = rect.Moved(0, button.top - rect.bottom);
    if (rect.top < screen.top)
        rect = rect.Moved(0, screen.top - rect.top);
    return rect;
}

} // namespace

CColourPickerPopup::CColourPickerPopup(CColourPopupParent& parent, const CRect& button, CColour start,
                                       const CString& customText, const CString& section)
    : m_nMargin(GetDesktop().GetMetrics().m_Edge.cx), m_Section(section), m_CustomText(customText),
      m_crStart(start), m_crColour(start), m_pParent(&parent) {
    LoadColourTable(m_Section);
    m_nBoxSize = std::max(m_nBoxSize, 2 * m_nMargin + 2 + kLeastInside);
    Place(button);
    m_nChosenSel = RowWithColour(m_crStart);
    if (m_nChosenSel == kNone && HasCustomBox())
        m_nChosenSel = kCustomBox;
}

void CColourPickerPopup::Place(const CRect& button) {
    CSize size{m_nColumns * m_nBoxSize + 2 * m_nMargin, m_nRows * m_nBoxSize + 2 * m_nMargin};
    if (HasCustomBox()) {
        const CSize text = GetDesktop().MeasureText(m_CustomText);
        const int nHeight = m_nMargin + text.cy + 4 * m_nMargin + kLineHeight;
        size.cx = std::max(size.cx, text.cx + 2 * m_nMargin);
        m_CustomRect = {m_nMargin, size.cy, size.cx - m_nMargin, size.cy + nHeight};
        size.cy += nHeight + 2 * m_nMargin;
    }
    m_WindowRect =
        MovedOntoScreen({button.left, button.bottom, button.left + size.cx, button.bottom + size.cy}, button,
                        GetDesktop().GetScreenAround(button));
}

void CColourPickerPopup::Abandon() {
    m_pParent = nullptr;
    End(COLOUR_SELECTION_CANCELLED);
}

int CColourPickerPopup::IndexOf(int nRow, int nColumn) const {
    if (nRow < 0 || nRow >= m_nRows || nColumn < 0 || nColumn >= m_nColumns)
        return kNone;
    const int nIndex = nRow * m_nColumns + nColumn;
    return nIndex < m_nColours ? nIndex : kNone;
}

CRect CColourPickerPopup::RectOf(int nIndex) const {
    const int nLeft = m_nMargin + nIndex % m_nColumns * m_nBoxSize;
    const int nTop = m_nMargin + nIndex / m_nColumns * m_nBoxSize;
    return {nLeft, nTop, nLeft + m_nBoxSize, nTop + m_nBoxSize};
}

// The margin is taken off the point for the custom box as for the cells, so the box's hit area lies by the
// margin right of and below where it is drawn.
int CColourPickerPopup::HitTest(CPoint point) const {
    point.x -= m_nMargin;
    point.y -= m_nMargin;
    if (m_CustomRect.PtInRect(point))
        return kCustomBox;
    if (point.x < 0 || point.y < 0)
        return kNone;
    return IndexOf(point.y / m_nBoxSize, point.x / m_nBoxSize);
}

int CColourPickerPopup::NextSelection(PopupKey key) const {
    const bool bForwards = key == PopupKey::Down || key == PopupKey::Right;
    const int nAround = bForwards ? 0 : m_nColours - 1;
    // Where nothing is marked, the keyboard starts at what is chosen.
    if (m_nCurrentSel == kNone)
        return m_nChosenSel == kNone ? nAround : m_nChosenSel;
    if (m_nCurrentSel == kCustomBox)
        return nAround;
    const int nRow = m_nCurrentSel / m_nColumns;
    const int nColumn = m_nCurrentSel % m_nColumns;
    int nNext = kNone;
    if (key == PopupKey::Down)
        nNext = IndexOf(nRow + 1, nColumn);
    else if (key == PopupKey::Up)
        nNext = IndexOf(nRow - 1, nColumn);
    else if (key == PopupKey::Right)
        nNext = nColumn == m_nColumns - 1 ? IndexOf(nRow + 1, 0) : IndexOf(nRow, nColumn + 1);
    else
        nNext = nColumn > 0 ? IndexOf(nRow, nColumn - 1) : IndexOf(nRow - 1, m_nColumns - 1);
    if (nNext != kNone)
        return nNext;
    return HasCustomBox() ? kCustomBox : nAround;
}

std::vector<CPopupCell> CColourPickerPopup::GetCells() const {
    std::vector<CPopupCell> cells;
    cells.reserve(GetColourTable().size() + 1);
    for (int nIndex = 0; nIndex < m_nColours; ++nIndex)
        cells.push_back({RectOf(nIndex), TableRow(nIndex).m_Name});
    if (HasCustomBox())
        cells.push_back({m_CustomRect, m_CustomText, true});
    return cells;
}

// The box follows the cells.
int CColourPickerPopup::GetCurrentCell() const {
    return m_nCurrentSel == kCustomBox ? m_nColours : m_nCurrentSel;
}

void CColourPickerPopup::Draw(CCanvas& canvas) const {
    const CRect window{0, 0, m_WindowRect.Width(), m_WindowRect.Height()};
    canvas.FillRect(window, canvas.GetSystemColour(SystemColour::ButtonFace));
    for (int nIndex = 0; nIndex < m_nColours; ++nIndex)
        DrawCell(canvas, nIndex);
    if (HasCustomBox())
        DrawCustomBox(canvas);
    canvas.DrawEdge(window, EDGE_RAISED, EDGE_RECT);
}

// The background and the edge that show what is chosen and what is current.
void CColourPickerPopup::DrawSelectable(CCanvas& canvas, int nIndex, const CRect& rect,
                                        SystemColour chosenFace) const {
    const bool bCurrent = nIndex == m_nCurrentSel;
    const bool bChosen = nIndex == m_nChosenSel;
    canvas.FillRect(rect,
                    canvas.GetSystemColour(bChosen && !bCurrent ? chosenFace : SystemColour::ButtonFace));
    if (bCurrent) {
        canvas.DrawEdge(rect, EDGE_RAISED_INNER, EDGE_RECT);
        // An edge has little contrast by itself, in some themes next to none.
        canvas.FrameRect(rect.Deflated(1, 1), canvas.GetSystemColour(SystemColour::ButtonText));
    }
    if (bChosen && !bCurrent)
        canvas.DrawEdge(rect, EDGE_SUNKEN_OUTER, EDGE_RECT);
}

void CColourPickerPopup::DrawCell(CCanvas& canvas, int nIndex) const {
    const CRect rect = RectOf(nIndex);
    DrawSelectable(canvas, nIndex, rect, SystemColour::Highlight);
    const CRect inside = rect.Deflated(m_nMargin + 1, m_nMargin + 1);
    canvas.FillRect(inside, TableRow(nIndex).m_Colour);
    canvas.FrameRect(inside, canvas.GetSystemColour(SystemColour::Shadow));
}

void CColourPickerPopup::DrawCustomBox(CCanvas& canvas) const {
    const auto [nLeft, nTop, nRight, nBottom] = m_CustomRect;
    canvas.DrawLine({nLeft, nTop}, {nRight, nTop}, canvas.GetSystemColour(SystemColour::Shadow));
    canvas.DrawLine({nLeft, nTop + 1}, {nRight, nTop + 1}, canvas.GetSystemColour(SystemColour::Highlight));
    const CRect box{nLeft, nTop + kLineHeight + m_nMargin, nRight, nBottom};
    DrawSelectable(canvas, kCustomBox, box, SystemColour::Light);
    canvas.DrawCentredText(m_CustomText, box, canvas.GetSystemColour(SystemColour::ButtonText));
}

void CColourPickerPopup::OnMouseMove(CPersonKey, CPoint point) {
    const int nIndex = HitTest(point);
    if (IsTracking() && nIndex != m_nCurrentSel)
        ChangeSelection(nIndex);
}

void CColourPickerPopup::OnLeftButtonUp(CPersonKey, CPoint point) {
    const bool bInside = m_WindowRect.PtInRect({m_WindowRect.left + point.x, m_WindowRect.top + point.y});
    End(bInside ? COLOUR_SELECTION_ENDED : COLOUR_SELECTION_CANCELLED);
}

void CColourPickerPopup::OnKeyDown(CPersonKey, PopupKey key) {
    switch (key) {
    case PopupKey::Escape:
        End(COLOUR_SELECTION_CANCELLED);
        break;
    case PopupKey::Return:
    case PopupKey::Space:
        End(COLOUR_SELECTION_ENDED);
        break;
    default:
        if (IsTracking())
            ChangeSelection(NextSelection(key));
    }
}

// Where no row is marked, the colour is that of the start: a click there changes nothing.
void CColourPickerPopup::ChangeSelection(int nIndex) {
    m_nCurrentSel = nIndex;
    m_crColour = nIndex >= 0 ? TableRow(nIndex).m_Colour : m_crStart;
    Invalidate();
    if (nIndex != kNone && m_pParent)
        m_pParent->OnColourMessage(COLOUR_CHANGED, m_crColour);
}

// False when the person cancels the colour dialog.
bool CColourPickerPopup::MixColour() {
    CColour colour = m_crStart;
    m_bChildDialogOpen = true;
    const bool bChosen = GetDesktop().RunColourDialog(colour);
    m_bChildDialogOpen = false;
    if (bChosen) {
        m_crColour = colour;
        RememberColour(m_Section, colour);
    }
    return bChosen;
}

void CColourPickerPopup::End(ColourMessage message) {
    if (!IsTracking())
        return;
    if (message == COLOUR_SELECTION_ENDED && m_nCurrentSel == kCustomBox && !MixColour())
        message = COLOUR_SELECTION_CANCELLED;
    if (message == COLOUR_SELECTION_CANCELLED)
        m_crColour = m_crStart;
    m_bEnded = true;
    if (m_pParent)
        m_pParent->OnColourMessage(message, m_crColour);
    GetDesktop().ClosePopup(*this);
}

} // namespace orrelix
