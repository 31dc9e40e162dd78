// What an owner-drawn control needs to draw itself: points, rectangles, colours and a canvas.
//
// Lengths are pixels of the window system's own measure, which may be several device pixels each. A
// rectangle holds its left and top edge and not its right and bottom one.
#pragma once

#include "platform/string.h"

#include <cstdint>

namespace orrelix {

// Red in the low byte, green in the next and blue in the third.
using CColour = std::uint32_t;

constexpr CColour MakeColour(unsigned nRed, unsigned nGreen, unsigned nBlue) {
    return nRed | nGreen << 8 | nBlue << 16;
}
constexpr unsigned RedOf(CColour colour) {
    return colour & 0xff;
}
constexpr unsigned GreenOf(CColour colour) {
    return colour >> 8 & 0xff;
}
constexpr unsigned BlueOf(CColour colour) {
    return colour >> 16 & 0xff;
}

struct CPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const CPoint&, const CPoint&) = default;
};

struct CSize {
    int cx = 0;
    int cy = 0;
    friend bool operator==(const CSize&, const CSize&) = default;
};

struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool PtInRect(CPoint point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    CRect Moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    CRect Deflated(int dx, int dy) const { return {left + dx, top + dy, right - dx, bottom - dy}; }
    friend bool operator==(const CRect&, const CRect&) = default;
};

// Colours that the person's theme decides.
enum class SystemColour { ButtonFace, ButtonText, Highlight, Light, Shadow };

// The kinds of border that DrawEdge knows, by the numbers that SetEdgeStyle is given; a sum
// of an outer and an inner one makes an edge of two lines.
enum EdgeStyle : unsigned {
    EDGE_RAISED_OUTER = 1,
    EDGE_SUNKEN_OUTER = 2,
    EDGE_RAISED_INNER = 4,
    EDGE_SUNKEN_INNER = 8,
    EDGE_RAISED = EDGE_RAISED_OUTER | EDGE_RAISED_INNER, // 5
    EDGE_SUNKEN = EDGE_SUNKEN_OUTER | EDGE_SUNKEN_INNER, // 10
};

// The sides that DrawEdge draws.
enum EdgeFlags : unsigned { EDGE_LEFT = 1, EDGE_TOP = 2, EDGE_RIGHT = 4, EDGE_BOTTOM = 8, EDGE_RECT = 15 };

// The state bits of DrawArrow.
enum ArrowState : unsigned {
    ARROW_DOWN = 0x0001,
    ARROW_INACTIVE = 0x0100,
    ARROW_PUSHED = 0x0200,
    ARROW_FLAT = 0x4000,
};

// A surface to draw on, made by the window system for the length of one call.
class CCanvas {
public:
    virtual CColour GetSystemColour(SystemColour colour) const = 0;

    virtual void FillRect(const CRect& rect, CColour colour) = 0;
    // A frame of one pixel just inside the rectangle.
    virtual void FrameRect(const CRect& rect, CColour colour) = 0;
    // A line of one pixel; the end point isn't drawn.
    virtual void DrawLine(CPoint from, CPoint to, CColour colour) = 0;
    // Just inside the rectangle, with EdgeStyle and EdgeFlags.
    virtual void DrawEdge(const CRect& rect, unsigned nStyle, unsigned nFlags) = 0;
    // A button with an arrow, as scroll bars have one, with ArrowState bits.
    virtual void DrawArrow(const CRect& rect, unsigned nState) = 0;
    // One line in the dialogs' font, centred both ways.
    virtual void DrawCentredText(const CString& text, const CRect& rect, CColour colour) = 0;
    virtual void DrawFocusRect(const CRect& rect) = 0;

protected:
    ~CCanvas() = default;
};

} // namespace orrelix
