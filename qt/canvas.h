// CQtCanvas: a painter as owner-drawn controls and popups see it.
#pragma once

#include "toolkit/drawing.h"

#include <QColor>
#include <QPainter>
#include <QWidget>

namespace orrelix {

QColor ToQt(CColour colour);
CColour FromQt(const QColor& colour);
QRect ToQt(const CRect& rect);
CRect FromQt(const QRect& rect);

// The theme's colour.
CColour SystemColourOf(const QPalette& palette, SystemColour colour);

class CQtCanvas final : public CCanvas {
public:
    // Draws on the widget, in whose paint event it is made, with its palette, style and font.
    explicit CQtCanvas(QWidget& widget) : m_Widget(widget), m_Painter(&widget) {}

    CColour GetSystemColour(SystemColour colour) const override;
    void FillRect(const CRect& rect, CColour colour) override;
    void FrameRect(const CRect& rect, CColour colour) override;
    void DrawLine(CPoint from, CPoint to, CColour colour) override;
    void DrawEdge(const CRect& rect, unsigned nStyle, unsigned nFlags) override;
    void DrawArrow(const CRect& rect, unsigned nState) override;
    void DrawCentredText(const CString& text, const CRect& rect, CColour colour) override;
    void DrawFocusRect(const CRect& rect) override;

private:
    void DrawSides(const QRect& rect, const QColor& leftAndTop, const QColor& rightAndBottom,
                   unsigned nFlags);

    QWidget& m_Widget;
    QPainter m_Painter;
};

} // namespace orrelix
