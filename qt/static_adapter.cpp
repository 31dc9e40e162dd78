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
    }

    QSize minimumSizeHint() const override {
        return m_bFilledLater ? QLabel::minimumSizeHint().expandedTo(
                                    {fontMetrics().averageCharWidth() * 36, fontMetrics().lineSpacing() * 2})
                              : QLabel::minimumSizeHint();
    }

private:
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
