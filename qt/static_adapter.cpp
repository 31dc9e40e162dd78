#include "qt/adapters.h"
#include "qt/text.h"

#include <QLabel>

namespace orrelix {

namespace {

// Wraps its text, and keeps the height of a few lines free where the program is going to set the text.
class CTextLabel : public QLabel {
public:
    CTextLabel(QWidget* pParent, bool bFilledLater) : QLabel(pParent), m_bFilledLater(bFilledLater) {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        if (bFilledLater)
            setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }

    QSize minimumSizeHint() const override {
        const int nWidth = m_bFilledLater ? fontMetrics().averageCharWidth() * 36 : 0;
        return QLabel::minimumSizeHint().expandedTo({nWidth, LeastHeight()});
    }
    // A text of one line takes as much height as one of two, so that nothing jumps when it changes.
    int heightForWidth(int nWidth) const override {
        return qMax(QLabel::heightForWidth(nWidth), LeastHeight());
    }

private:
    int LeastHeight() const {
        return m_bFilledLater ? fontMetrics().lineSpacing() * 2 + 2 * (margin() + frameWidth()) : 0;
    }

    bool m_bFilledLater;
};

class CStaticAdapter : public CControlAdapter {
public:
    CStaticAdapter(CStatic& text, const CControlDescription& description, CStage& stage, QWidget& parent)
        : CControlAdapter(text, stage), m_bPath(description.Has(STYLE_PATH)),
          m_pLabel(new CTextLabel(&parent, !*description.m_pCaption)) {
        if (description.Has(STYLE_SUNKEN)) {
            m_pLabel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
            m_pLabel->setMargin(2);
        }
    }

    QWidget* Widget() const override { return m_pLabel; }
    void ShowAll() override {
        const CString& text = Control().GetWindowText();
        m_pLabel->setText(m_bPath ? PathToQt(text) : LinesToQt(text));
    }

private:
    const bool m_bPath;
    CTextLabel* m_pLabel;
};

} // namespace

CAdapterPtr MakeStaticAdapter(CStatic& text, const CControlDescription& description, CStage& stage,
                              QWidget& parent) {
    return std::make_unique<CStaticAdapter>(text, description, stage, parent);
}

} // namespace orrelix
