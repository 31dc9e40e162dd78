#include "qt/canvas.h"

#include "qt/text.h"

#include <QStyleOptionFocusRect>
#include <algorithm>
#include <cmath>

namespace orrelix {

namespace {

QPalette::ColorRole RoleOf(SystemColour colour) {
    switch (colour) {
    case SystemColour::ButtonFace:
        return QPalette::Button;
    case SystemColour::ButtonText:
        return QPalette::ButtonText;
    case SystemColour::Highlight:
        return QPalette::Light;
    case SystemColour::Light:
        return QPalette::Midlight;
    case SystemColour::Shadow:
        return QPalette::Dark;
    }
    return QPalette::Button;
}

} // namespace

QColor ToQt(CColour colour) {
    return QColor(static_cast<int>(RedOf(colour)), static_cast<int>(GreenOf(colour)),
                  static_cast<int>(BlueOf(colour)));
}

CColour FromQt(const QColor& colour) {
    return MakeColour(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
                      static_cast<unsigned>(colour.blue()));
}

QRect ToQt(const CRect& rect) {
    return QRect(rect.left, rect.top, rect.Width(), rect.Height());
}

CRect FromQt(const QRect& rect) {
    return {rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()};
}

namespace {

double Luminance(const QColor& colour) {
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [nDark, nLight] = std::minmax({Luminance(one), Luminance(other)}); // by value
    return (nLight + 0.05) / (nDark + 0.05);
}

// The theme's colour for shadows, drawn towards the text's until it stands out from a button's face by the
// three to one that a line needs to be seen.
QColor ShadowOf(const QPalette& palette) {
    const QColor face = palette.color(QPalette::Button), text = palette.color(QPalette::ButtonText);
    QColor shadow = palette.color(QPalette::Dark);
    for (int nStep = 0; nStep < 8 && Contrast(shadow, face) < 3; ++nStep)
        shadow = QColor((shadow.red() * 3 + text.red()) / 4, (shadow.green() * 3 + text.green()) / 4,
                        (shadow.blue() * 3 + text.blue()) / 4);
    return shadow;
}

} // namespace

CColour SystemColourOf(const QPalette& palette, SystemColour colour) {
    return FromQt(colour == SystemColour::Shadow ? ShadowOf(palette) : palette.color(RoleOf(colour)));
}

CColour CQtCanvas::GetSystemColour(SystemColour colour) const {
    return SystemColourOf(m_Widget.palette(), colour);
}

void CQtCanvas::FillRect(const CRect& rect, CColour colour) {
    m_Painter.fillRect(ToQt(rect), ToQt(colour));
}

void CQtCanvas::FrameRect(const CRect& rect, CColour colour) {
    DrawSides(ToQt(rect), ToQt(colour), ToQt(colour), EDGE_RECT);
}

void CQtCanvas::DrawLine(CPoint from, CPoint to, CColour colour) {
    // Lines are level or upright; a filled rectangle leaves the end point out on every screen density.
    m_Painter.fillRect(QRect(QPoint(qMin(from.x, to.x), qMin(from.y, to.y)),
                             QSize(qMax(1, qAbs(to.x - from.x)), qMax(1, qAbs(to.y - from.y)))),
                       ToQt(colour));
}

void CQtCanvas::DrawEdge(const CRect& rect, unsigned nStyle, unsigned nFlags) {
    const QPalette& palette = m_Widget.palette();
    const QColor light = palette.color(QPalette::Light), midlight = palette.color(QPalette::Midlight),
                 dark = ShadowOf(palette);
    QRect inside = ToQt(rect);
    if (nStyle & (EDGE_RAISED_OUTER | EDGE_SUNKEN_OUTER)) {
        const bool bRaised = (nStyle & EDGE_RAISED_OUTER) != 0;
        DrawSides(inside, bRaised ? midlight : dark, bRaised ? dark : light, nFlags);
        inside.adjust(1, 1, -1, -1);
    }
    if (nStyle & (EDGE_RAISED_INNER | EDGE_SUNKEN_INNER)) {
        const bool bRaised = (nStyle & EDGE_RAISED_INNER) != 0;
        DrawSides(inside, bRaised ? light : dark, bRaised ? dark : midlight, nFlags);
    }
}

void CQtCanvas::DrawSides(const QRect& rect, const QColor& leftAndTop, const QColor& rightAndBottom,
                          unsigned nFlags) {
    if (nFlags & EDGE_LEFT)
        m_Painter.fillRect(rect.x(), rect.y(), 1, rect.height(), leftAndTop);
    if (nFlags & EDGE_TOP)
        m_Painter.fillRect(rect.x(), rect.y(), rect.width(), 1, leftAndTop);
    if (nFlags & EDGE_RIGHT)
        m_Painter.fillRect(rect.right(), rect.y(), 1, rect.height(), rightAndBottom);
    if (nFlags & EDGE_BOTTOM)
        m_Painter.fillRect(rect.x(), rect.bottom(), rect.width(), 1, rightAndBottom);
}

void CQtCanvas::DrawArrow(const CRect& rect, unsigned nState) {
    QStyleOption option;
    option.initFrom(&m_Widget);
    option.rect = ToQt(rect);
    option.state.setFlag(QStyle::State_Enabled, !(nState & ARROW_INACTIVE));
    option.state.setFlag(QStyle::State_Sunken, (nState & ARROW_PUSHED) != 0);
    option.state.setFlag(QStyle::State_Raised, !(nState & ARROW_PUSHED));
    if (!(nState & ARROW_FLAT))
        m_Widget.style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, &m_Painter, &m_Widget);
    if (nState & ARROW_PUSHED)
        option.rect.translate(1, 1);
    m_Widget.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &m_Painter, &m_Widget);
}

void CQtCanvas::DrawCentredText(const CString& text, const CRect& rect, CColour colour) {
    m_Painter.setPen(ToQt(colour));
    m_Painter.drawText(ToQt(rect), Qt::AlignCenter | Qt::TextSingleLine, ToQt(text));
}

void CQtCanvas::DrawFocusRect(const CRect& rect) {
    // The style's own focus mark may be a frame in the theme's colour, which is lost on a like colour.
    m_Painter.setPen(QPen(m_Widget.palette().color(QPalette::ButtonText), 1, Qt::DotLine));
    m_Painter.setBrush(Qt::NoBrush);
    m_Painter.drawRect(ToQt(rect).adjusted(0, 0, -1, -1));
}

} // namespace orrelix
