#include "controls/colour_picker.h"

#include "controls/hex_colour.h"
#include "toolkit/desktop.h"
#include "toolkit/dialog.h"

#include <algorithm>

namespace orrelix {

CColourPicker::CColourPicker(CDialog& parent)
    : m_BackColour(GetDesktop().GetSystemColour(SystemColour::ButtonFace)),
      m_TextColour(GetDesktop().GetSystemColour(SystemColour::ButtonText)), m_Parent(parent) {}

CColourPicker::~CColourPicker() {
    AbandonPopup();
}

void CColourPicker::OnCreate(const CControlDescription&) {
    AbandonPopup();
}

void CColourPicker::AbandonPopup() {
    m_bPopupOpen = false;
    if (CColourPickerPopup* pPopup = std::exchange(m_pPopup, nullptr))
        pPopup->Abandon();
}

void CColourPicker::SetUp(const CString& section) {
    SetEdgeStyle(EDGE_RAISED, EDGE_RECT);
    SetArrowState(ARROW_FLAT);
    m_Section = section;
}

void CColourPicker::SetEdgeStyle(unsigned nEdge, unsigned nFlags) {
    m_EdgeStyle = nEdge;
    m_EdgeFlags = nFlags;
}

void CColourPicker::SetArrowState(unsigned nState) {
    m_ArrowState = nState;
}

void CColourPicker::SetHexColour(const CString& text) {
    if (text.GetLength() < 6)
        return;
    if (text.GetLength() > 6)
        AfxMessageBox("The RGB string is not exceed 6 chars!");
    else if (const auto colour = ParseHexColour(text))
        SetColour(*colour);
    else
        AfxMessageBox("You must input a RGB value!");
}

CString CColourPicker::GetHexColour() const {
    return HexText(m_BackColour);
}

void CColourPicker::SetColour(CColour colour) {
    m_BackColour = colour;
    TellObserver(ControlChange::Appearance);
}

CSize CColourPicker::Measure(CSize size) {
    const CThemeMetrics metrics = GetDesktop().GetMetrics();
    const CSize edge = metrics.m_Edge;
    const CSize arrow{std::min(metrics.m_ScrollThumb.cx - 6, 5 * edge.cx),
                      std::max(metrics.m_ScrollThumb.cy, 5 * edge.cy)};
    size = {std::max(size.cx, 2 * arrow.cx + edge.cx), arrow.cy + 2 * edge.cy};
    m_ArrowRect = {size.cx - edge.cx - arrow.cx, edge.cy, size.cx - edge.cx, edge.cy + arrow.cy};
    return size;
}

void CColourPicker::Draw(CCanvas& canvas, const CRect& rect, bool bPressed, bool bFocused) const {
    const unsigned nPushed = bPressed || m_bPopupOpen ? ARROW_PUSHED : 0u;
    const unsigned nInactive = IsWindowEnabled() ? 0u : ARROW_INACTIVE;
    canvas.DrawArrow(m_ArrowRect.Moved(rect.left, rect.top), ARROW_DOWN | m_ArrowState | nPushed | nInactive);
    canvas.DrawEdge(rect, m_EdgeStyle, m_EdgeFlags);

    const CSize edge = GetDesktop().GetMetrics().m_Edge;
    CRect inside = rect.Deflated(edge.cx + 2, edge.cy + 2);
    inside.right -= m_ArrowRect.Width();
    canvas.FillRect(inside,
                    IsWindowEnabled() ? m_BackColour : canvas.GetSystemColour(SystemColour::ButtonFace));
    canvas.FrameRect(inside, canvas.GetSystemColour(SystemColour::Shadow)); // a colour like the button's own
    if (!GetWindowText().IsEmpty())
        DrawCaption(canvas, inside);
    if (bFocused)
        canvas.DrawFocusRect(inside.Deflated(2, 2));
}

void CColourPicker::DrawCaption(CCanvas& canvas, const CRect& rect) const {
    if (IsWindowEnabled()) {
        canvas.DrawCentredText(GetWindowText(), rect, m_TextColour);
        return;
    }
    // Embossed.
    canvas.DrawCentredText(GetWindowText(), rect.Moved(1, 1),
                           canvas.GetSystemColour(SystemColour::Highlight));
    canvas.DrawCentredText(GetWindowText(), rect, canvas.GetSystemColour(SystemColour::Shadow));
}

// The window comes last: where nobody is there, the popup ends at once.
void CColourPicker::OnClick() {
    if (m_bPopupOpen)
        return;
    m_bPopupOpen = true;
    m_pPopup = new CColourPickerPopup(*this, GetDesktop().GetScreenRect(*this), m_BackColour, m_CustomText,
                                      m_Section);
    TellObserver(ControlChange::Appearance);
    Tell(COLOUR_POPUP_OPENED, m_BackColour);
    m_Parent.EnableWindow(false);
    GetDesktop().OpenPopup(*m_pPopup);
}

void CColourPicker::OnColourMessage(ColourMessage message, CColour colour) {
    if (message == COLOUR_CHANGED) {
        Tell(message, colour);
        return;
    }
    m_bPopupOpen = false;
    m_pPopup = nullptr;
    SetColour(colour);
    m_Parent.EnableWindow(true);
    Tell(COLOUR_POPUP_CLOSED, colour);
    Tell(message, colour);
}

void CColourPicker::Tell(ColourMessage message, CColour colour) {
    m_Parent.SendMessage(message, colour, GetDlgCtrlID());
}

} // namespace orrelix
