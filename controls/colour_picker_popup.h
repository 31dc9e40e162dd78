// CColourPickerPopup: the popup of a colour button. It shows the table of 40 named colours and, below it, a
// box that opens the system's dialog for any colour; a colour that is mixed there is remembered in the
// settings.
//
// It follows the mouse and the keys until the person has decided, reports that once to its parent, closes its
// window and deletes itself.
#pragma once

#include "controls/colour_table.h"
#include "toolkit/popup_window.h"

namespace orrelix {

// What the popup tells the button and the button the dialog, each with a colour.
enum ColourMessage : int {
    COLOUR_CHANGED = 2025,             // another colour is under the pointer
    COLOUR_POPUP_OPENED = 2026,        // to the dialog alone
    COLOUR_POPUP_CLOSED = 2027,        // to the dialog alone
    COLOUR_SELECTION_ENDED = 2028,     // with the colour that the person chose
    COLOUR_SELECTION_CANCELLED = 2029, // with the colour of the start
};

class CColourPopupParent {
public:
    virtual void OnColourMessage(ColourMessage message, CColour colour) = 0;

protected:
    ~CColourPopupParent() = default;
};

class CColourPickerPopup : public CPopupWindow {
public:
    // Selections: a row of the table, or one of these.
    static constexpr int kNone = -1;
    static constexpr int kCustomBox = -2;

    // Made with new. `button` is where the parent stands on the screen; the popup opens below it, or above it
    // where there is no room. An empty customText means that there is no box for any colour. The section word
    // is that of controls/colour_table.h.
    CColourPickerPopup(CColourPopupParent& parent, const CRect& button, CColour start,
                       const CString& customText, const CString& section);

    // The parent goes: ends without a message.
    void Abandon();

    // The row under the pointer or the keyboard.
    int GetCurrentSel() const { return m_nCurrentSel; }
    // The row that has the colour of the start; else the box, if there is one.
    int GetChosenSel() const { return m_nChosenSel; }
    // In the popup's coordinates; empty without a box.
    const CRect& GetCustomRect() const { return m_CustomRect; }

    const CRect& GetWindowRect() const override { return m_WindowRect; }
    std::vector<CPopupCell> GetCells() const override;
    int GetCurrentCell() const override;
    void Draw(CCanvas& canvas) const override;

    void OnMouseMove(CPersonKey, CPoint point) override;
    void OnLeftButtonUp(CPersonKey, CPoint point) override;
    void OnKeyDown(CPersonKey, PopupKey key) override;
    void OnDeactivate(CPersonKey) override { End(COLOUR_SELECTION_CANCELLED); }
    void OnClosed() override { delete this; }

private:
    ~CColourPickerPopup() override = default;

    bool HasCustomBox() const { return !m_CustomText.IsEmpty(); }
    bool IsTracking() const { return !m_bChildDialogOpen && !m_bEnded; }
    void Place(const CRect& button);

    int IndexOf(int nRow, int nColumn) const;
    CRect RectOf(int nIndex) const;
    int HitTest(CPoint point) const;
    int NextSelection(PopupKey key) const;

    void DrawSelectable(CCanvas& canvas, int nIndex, const CRect& rect, SystemColour chosenFace) const;
    void DrawCell(CCanvas& canvas, int nIndex) const;
    void DrawCustomBox(CCanvas& canvas) const;

    void ChangeSelection(int nIndex);
    bool MixColour();
    void End(ColourMessage message);

    const int m_nColours = static_cast<int>(GetColourTable().size());
    const int m_nColumns = 8;
    const int m_nRows = (m_nColours + m_nColumns - 1) / m_nColumns;
    int m_nBoxSize = 18;
    int m_nMargin;
    int m_nCurrentSel = kNone;
    int m_nChosenSel;
    CString m_Section;
    CString m_CustomText;
    CRect m_CustomRect;
    CRect m_WindowRect;
    CColour m_crStart;
    CColour m_crColour;
    CColourPopupParent* m_pParent;
    bool m_bChildDialogOpen = false;
    bool m_bEnded = false;
};

} // namespace orrelix
